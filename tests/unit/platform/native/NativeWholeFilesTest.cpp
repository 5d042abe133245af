#include "support/WholeFilesContract.h"
#include "unit/platform/native/NativeStage.h"

namespace korvane {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(RealDisk, WholeFilesContract, NativeStage);

TEST(NativeVolumeTest, TellsWhereItsRootIs) {
    const NativeFileSystem files(u"");
    const NativeStage stage;
    const auto volume = files.Volume(stage.At(u""));
    ASSERT_TRUE(volume);
    EXPECT_TRUE(files.DirExists(volume->root));
    EXPECT_GT(volume->totalBytes, 0);
}

} // namespace
} // namespace korvane
