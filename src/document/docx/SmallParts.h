#pragma once

#include "document/model/Document.h"
#include "document/model/ListTable.h"

#include <string>
#include <string_view>

namespace korvane::doc::docx {

// The parts of a DOCX file besides the one with its text.

std::string ContentTypesPart(bool withLists);
std::string RelationsPart(std::string_view relations);
std::string StylesPart(const Document& document);
std::string SettingsPart(const Document& document);
std::string NumberingPart(const ListTable& lists);

} // namespace korvane::doc::docx
