#pragma once

#include "platform/native/NativeFileSystem.h"

namespace korvane {

/// The disk, with the folder of the running program and the user's folder for its state.
NativeFileSystem OwnFiles();

} // namespace korvane
