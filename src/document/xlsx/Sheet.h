#pragma once

#include "common/text/Text.h"
#include "document/model/Builder.h"
#include "document/model/Reading.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace korvane::doc::xlsx {

/// The texts of a sheet by their rows and columns, which count from 0.
struct Sheet {
    std::map<std::size_t, std::map<std::size_t, Text>> rows;
    std::size_t columns = 0;
    Trouble trouble = Trouble::None;
};

/// The texts to which cells refer by number.
std::vector<Text> ReadSharedTexts(std::string_view xml, const Limits& limits);

Sheet ReadSheet(std::string_view xml, const std::vector<Text>& shared, const Limits& limits);

/// Adds the sheet to a document: its name and a table.
void PutSheet(Builder& builder, TextView name, const Sheet& sheet);

} // namespace korvane::doc::xlsx
