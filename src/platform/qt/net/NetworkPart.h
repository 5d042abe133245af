#pragma once

#include <QString>

namespace korvane {

class Network;

/// The only thing that the program knows of the part by name.
inline constexpr auto kMakeNetwork = "MakeKorvaneNetwork";
/// The caller owns what it makes.
using MakeNetwork = Network* (*)();

/// Finds the part of the program for the net; nullptr if it isn't there. Where it is a library, that has the
/// given path, without its ending.
MakeNetwork FindNetworkPart(const QString& library);

} // namespace korvane
