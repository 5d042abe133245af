#include "document/store/MemoryTextStore.h"
#include "support/TextEditingContract.h"

namespace korvane::doc {

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, TextEditingContract, MemoryTextStore);

} // namespace korvane::doc
