#include "platform/qt/combos/TypedComboBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>

namespace korvane {
namespace {

TEST(TypedComboBoxTest, HasAFieldAtOnceAndItsListWhenThatIsWanted) {
    TypedComboBox box;
    box.addItems({QStringLiteral("*.tbx"), QStringLiteral("*.rtf")});
    EXPECT_TRUE(box.isEditable());
    EXPECT_TRUE(box.findChildren<QAbstractItemView*>().isEmpty());
    box.show();
    box.clearEditText();
    QTest::keyClicks(&box, QStringLiteral("*.x"));
    EXPECT_EQ(box.currentText(), QStringLiteral("*.x"));
    EXPECT_TRUE(box.findChildren<QAbstractItemView*>().isEmpty());
    EXPECT_EQ(box.view()->model()->rowCount(), 2);
}

} // namespace
} // namespace korvane
