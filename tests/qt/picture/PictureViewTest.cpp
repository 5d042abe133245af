#include "platform/qt/picture/PictureView.h"

#include "QtSupport.h"
#include "picture/PictureFile.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace korvane {
namespace {

class PictureViewTest : public testing::Test {
protected:
    PictureViewTest() {
        view.resize(100, 80);
        view.show();
        test::Settle();
    }

    /// Waits until the picture was read, or it is known that it can't be.
    bool IsRead() { return view.IsReady() || ready.wait(); }
    QColor At(int x, int y) { return view.grab().toImage().pixelColor(x, y); }

    test::PictureFolder folder;
    QString path = folder.Add("picture.png", QSize(40, 30), "PNG");
    PictureView view;
    QSignalSpy ready{&view, &PictureView::Ready};
};

TEST_F(PictureViewTest, TheGroundIsThereBeforeThePicture) {
    view.SetFile(path);
    view.SetPlace(QRect(0, 0, 100, 80));
    EXPECT_FALSE(view.IsReady());
    EXPECT_EQ(At(50, 40), QColor(Qt::black));
}

TEST_F(PictureViewTest, ThePictureFillsItsPlaceAlone) {
    view.SetFile(path);
    view.SetPlace(QRect(20, 10, 60, 40));
    ASSERT_TRUE(IsRead());
    EXPECT_EQ(At(25, 30), QColor(Qt::red));
    EXPECT_EQ(At(75, 30), QColor(Qt::blue));
    EXPECT_EQ(At(10, 30), QColor(Qt::black));
    EXPECT_EQ(At(50, 60), QColor(Qt::black));
}

TEST_F(PictureViewTest, AScrolledPictureIsNotReadAgain) {
    view.SetFile(path);
    view.SetPlace(QRect(0, 0, 100, 80));
    ASSERT_TRUE(IsRead());
    view.SetPlace(QRect(-60, 0, 100, 80));
    EXPECT_TRUE(view.IsReady());
    EXPECT_EQ(At(10, 40), QColor(Qt::blue));
}

TEST_F(PictureViewTest, OnlyTheLastOfSeveralPicturesIsTaken) {
    QImage green(10, 10, QImage::Format_RGB32);
    green.fill(Qt::green);
    green.save(folder.Path("green.png"));
    view.SetPlace(QRect(0, 0, 100, 80));
    view.SetFile(path);
    test::Settle();
    view.SetFile(folder.Path("green.png"));
    ASSERT_TRUE(IsRead());
    EXPECT_EQ(At(50, 40), QColor(Qt::green));
}

TEST_F(PictureViewTest, AFileThatIsNoPictureLeavesTheGround) {
    view.SetFile(path);
    view.SetPlace(QRect(0, 0, 100, 80));
    ASSERT_TRUE(IsRead());
    view.SetFile(folder.AddBytes("text.png", "This is no picture."));
    ASSERT_TRUE(IsRead());
    EXPECT_EQ(At(50, 40), QColor(Qt::black));
}

TEST_F(PictureViewTest, NoFileTakesThePictureAway) {
    view.SetFile(path);
    view.SetPlace(QRect(0, 0, 100, 80));
    ASSERT_TRUE(IsRead());
    view.SetFile(QString());
    EXPECT_EQ(At(50, 40), QColor(Qt::black));
}

TEST_F(PictureViewTest, TheSameFileIsReadAgainWhenItIsSetAgain) {
    view.SetFile(path);
    view.SetPlace(QRect(0, 0, 100, 80));
    ASSERT_TRUE(IsRead());
    QImage green(10, 10, QImage::Format_RGB32);
    green.fill(Qt::green);
    green.save(path);
    view.SetFile(QString());
    view.SetFile(path);
    ASSERT_TRUE(IsRead());
    EXPECT_EQ(At(50, 40), QColor(Qt::green));
}

TEST_F(PictureViewTest, CanGoWhileThePictureIsRead) {
    const QString large = folder.Add("large.jpg", QSize(3000, 2000), "JPG");
    {
        PictureView other;
        other.SetFile(large);
        other.SetPlace(QRect(0, 0, 3000, 2000));
        test::Settle();
    }
    view.SetFile(path);
    view.SetPlace(QRect(20, 10, 60, 40));
    ASSERT_TRUE(IsRead());
    EXPECT_EQ(At(25, 30), QColor(Qt::red));
}

} // namespace
} // namespace korvane
