#include "platform/qt/picture/ReadPicture.h"

#include "picture/PictureFile.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/picture/QtPictureFiles.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace korvane {
namespace {

const QByteArray kRedGif = QByteArray::fromHex("47494638396101000100800000FF0000FFFFFF"
                                               "2C00000000010001000002024401003B");

/// A picture of 24 bits for each pixel that ends after its head.
QByteArray HeadOfBmp(qint32 width, qint32 height) {
    const auto bytes = [](auto number) {
        return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
    };
    return "BM" + bytes(qint32{54}) + bytes(qint32{0}) + bytes(qint32{54}) + bytes(qint32{40}) +
           bytes(width) + bytes(height) + bytes(qint16{1}) + bytes(qint16{24}) + QByteArray(24, '\0');
}

class ReadPictureTest : public testing::Test {
protected:
    QImage Read(const QString& path, const QSize& wanted = QSize(10000, 10000)) const {
        return ReadPicture(path, wanted, givenUp);
    }

    test::PictureFolder folder;
    std::atomic_bool givenUp{false};
};

class FormatTest : public ReadPictureTest, public testing::WithParamInterface<const char*> {};

TEST_P(FormatTest, IsReadWhateverTheNameOfTheFileSays) {
    const QString path = folder.Add("picture.txt", QSize(40, 30), GetParam());
    EXPECT_EQ(SizeOfPicture(path), QSize(40, 30));
    const QImage picture = Read(path);
    ASSERT_EQ(picture.size(), QSize(40, 30));
    EXPECT_GT(picture.pixelColor(5, 15).red(), 200);
    EXPECT_GT(picture.pixelColor(35, 15).blue(), 200);
}

TEST_P(FormatTest, IsReadInTheWantedSize) {
    const QImage picture = Read(folder.Add("picture", QSize(400, 300), GetParam()), QSize(100, 60));
    ASSERT_EQ(picture.size(), QSize(100, 60));
    EXPECT_GT(picture.pixelColor(10, 30).red(), 200);
    EXPECT_GT(picture.pixelColor(90, 30).blue(), 200);
}

TEST_P(FormatTest, IsNeverReadLargerThanItIs) {
    EXPECT_EQ(Read(folder.Add("picture", QSize(40, 30), GetParam()), QSize(400, 20)).size(), QSize(40, 20));
}

TEST_P(FormatTest, NoBeginningOfAFileTakesTheProgramDown) {
    folder.Add("whole", QSize(40, 30), GetParam());
    const QByteArray bytes = folder.Bytes("whole");
    for (qsizetype length = 0; length < bytes.size(); length += 1 + length / 16) {
        const QString cut = folder.AddBytes("cut", bytes.left(length));
        const QSize size = SizeOfPicture(cut);
        EXPECT_TRUE(size.isEmpty() || size == QSize(40, 30)) << length;
        const QImage picture = Read(cut);
        EXPECT_TRUE(picture.isNull() || picture.size() == QSize(40, 30)) << length;
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, FormatTest, testing::Values("JPG", "PNG", "BMP"),
                         [](const auto& format) { return std::string(format.param); });

TEST_F(ReadPictureTest, AGifIsReadToo) {
    const QString path = folder.AddBytes("red.gif", kRedGif);
    EXPECT_EQ(SizeOfPicture(path), QSize(1, 1));
    EXPECT_EQ(Read(path).pixelColor(0, 0), QColor(Qt::red));
    for (qsizetype length = 0; length < kRedGif.size(); ++length)
        Read(folder.AddBytes("cut.gif", kRedGif.left(length)));
}

TEST_F(ReadPictureTest, ThePictureOfATurnedCameraIsTurnedBack) {
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QImageWriter writer(folder.Path("turned.jpg"), "JPG");
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(picture));
    EXPECT_EQ(SizeOfPicture(folder.Path("turned.jpg")), QSize(30, 40));
    EXPECT_EQ(Read(folder.Path("turned.jpg")).size(), QSize(30, 40));
    EXPECT_EQ(Read(folder.Path("turned.jpg"), QSize(15, 20)).size(), QSize(15, 20));
}

TEST_F(ReadPictureTest, OtherKindsOfFilesAreNoPictures) {
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'></svg>";
    for (const QString& path :
         {folder.AddBytes("empty.png", ""), folder.AddBytes("text.png", "This is no picture.\r\n"),
          folder.AddBytes("drawing.svg", drawing), folder.AddBytes("gif", "GIF8"), folder.Path("lost.png"),
          folder.Path("")}) {
        EXPECT_TRUE(SizeOfPicture(path).isEmpty()) << path.toStdString();
        EXPECT_TRUE(Read(path).isNull()) << path.toStdString();
    }
}

#ifndef _WIN32
TEST_F(ReadPictureTest, APipeAndADeviceAreNotWaitedFor) {
    const std::string pipe = folder.Path("pipe").toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const QString& path : {folder.Path("pipe"), QString("/dev/zero")}) {
        EXPECT_TRUE(SizeOfPicture(path).isEmpty()) << path.toStdString();
        EXPECT_TRUE(Read(path).isNull()) << path.toStdString();
    }
}
#endif

TEST_F(ReadPictureTest, APictureThatClaimsTooMuchMemoryIsNotRead) {
    const QString path = folder.AddBytes("huge.bmp", HeadOfBmp(16000, 12500));
    EXPECT_EQ(SizeOfPicture(path), QSize(16000, 12500));
    EXPECT_TRUE(Read(path, QSize(1920, 1080)).isNull());
}

TEST_F(ReadPictureTest, APictureOfTooManyPixelsComesSmaller) {
    // At four bytes for each pixel this one would take 160 MB.
    const QImage picture = Read(folder.Add("large.jpg", QSize(8000, 5000), "JPG"), QSize(8000, 5000));
    const double pixels = static_cast<double>(picture.width()) * picture.height();
    EXPECT_GT(pixels, 31e6);
    EXPECT_LT(pixels, 33e6);
    EXPECT_NEAR(static_cast<double>(picture.width()) / picture.height(), 1.6, 0.01);
}

TEST_F(ReadPictureTest, AReadingThatIsGivenUpGivesNothing) {
    const QString path = folder.Add("picture.jpg", QSize(400, 300), "JPG");
    givenUp = true;
    EXPECT_TRUE(Read(path).isNull());
}

TEST_F(ReadPictureTest, APixelOfThePictureIsOneOfTheScreens) {
    const QString path = folder.Add("picture.png", QSize(40, 30), "PNG");
    EXPECT_EQ(QtPictureFiles().NaturalSize(ToText(path)), (PictureSize{ToTwips(40), ToTwips(30)}));
    EXPECT_EQ(QtPictureFiles().NaturalSize(ToText(folder.Path("lost.png"))), std::nullopt);
}

} // namespace
} // namespace korvane
