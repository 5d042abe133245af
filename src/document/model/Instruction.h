#pragma once

#include "document/model/Document.h"

#include <optional>
#include <string>

namespace korvane::doc {

/// The field that an instruction stands for; nothing for a kind of which only the text is shown.
std::optional<Field> ReadInstruction(TextView instruction);

/// The instruction of a field.
Text WriteInstruction(const Field& field);

} // namespace korvane::doc
