#include "tbx/Verb.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr std::string_view kDocumentDetails =
    "The table looks as the one that the program puts into its text window. A row\n"
    "that is marked \"---\" is empty. With titles the first row of the file is taken\n"
    "too.\n";

constexpr std::array kVerbs{
    Verb{"dump", "FILE", "p", "Write all that a load leaves as a line of JSON",
         "The line is ASCII, with its keys in a fixed order, so that dumps can be compared\n"
         "byte for byte. null is a value that the load never set; \"messages\" are the\n"
         "message boxes that the load would have shown.\n",
         RunDump},
    Verb{"rewrite", "IN OUT", "p", "Load IN and save it as OUT, as the program does",
         "The end of OUT names OUT. When the load would have shown a message, it is told\n"
         "and the exit status is 1; OUT is then what the program would have saved, unless\n"
         "that would take the place of IN itself.\n",
         RunRewrite},
    Verb{"csv", "FILE", "dp", "Write the rows as CSV",
         "As in RFC 4180: UTF-8, the column names in the first record, CR LF after each\n"
         "record, quotes where a field needs them.\n",
         RunCsv},
    Verb{"tsv", "FILE", "p", "Write the rows as tab-separated values",
         "UTF-8, the column names in the first line, LF after each line. In a field a tab\n"
         "is written as \\t, LF as \\n, CR as \\r and a backslash as \\\\.\n",
         RunTsv},
    Verb{"json", "FILE", "p", "Write the rows as a JSON array of objects",
         "UTF-8, one object to a line, its keys the column names. An empty name becomes\n"
         "\"column N\" with the number of its column, and a repeated name gets the\n"
         "first free number after it, from 2 on.\n",
         RunJson},
    Verb{"rtf", "FILE", "ptbfalwg", "Write the table as an RTF document", kDocumentDetails, RunRtf},
    Verb{"html", "FILE", "ptbfalwg", "Write the table as an HTML document", kDocumentDetails, RunHtml},
    Verb{"docx", "FILE", "ptbfalwg", "Write the table as a DOCX document", kDocumentDetails, RunDocx},
    Verb{"import", "FILE.csv OUT", "dp", "Make a new table of a CSV file",
         "The first record names the columns. The file is UTF-8, or else in the code page.\n"
         "Records end in CR LF, LF or CR. Line breaks in quoted fields become CR LF, in\n"
         "column names a blank. Short records are filled up, and empty lines are passed\n"
         "over unless there is just one column. Too long a record, more than 24 columns\n"
         "or more than 32767 rows are errors, and no OUT is written then. What a load of\n"
         "OUT won't bring back is told, as by check, and the exit status is 1.\n",
         RunImport},
    Verb{"find", "FILE TEXT", "p", "Write the cells with TEXT as \"row:col: text\"",
         "Capital and small letters differ. Line breaks in the cell are written as \\r and\n"
         "\\n. The exit status is 1 when no cell holds TEXT.\n",
         RunFind},
    Verb{"info", "FILE", "p", "Write what the file information window shows",
         "Name, path, number of rows and columns, size, and the time of the last change.\n", RunInfo},
    Verb{"check", "FILE", "p", "Write what won't survive a load or a save",
         "Each line begins with \"row:col:\" and \"line N:\" as far as they are known. What\n"
         "is found several times in a cell, or in a part of the file that is no cell, is\n"
         "told once, with the line of the first time and the number of times. The exit\n"
         "status is 1 when there is any. Found are cell lines that are read as\n"
         "markers or dropped, final line breaks, lone CRs, rows marked \"---\", more than\n"
         "24 columns, rows past 32767, characters outside the code page, comments, and\n"
         "numbers that come back as others.\n",
         RunCheck},
    Verb{"kept", "[FILE] [OUT]", "prD", "List the kept versions of FILE, or of all tables",
         "Each line has the number of a version, the time when it was saved, its size and\n"
         "its rows. A line \"unsaved\" is what was changed and not saved. --restore writes\n"
         "such a table to OUT. --diff writes the rows that only it has after \"-\" and those\n"
         "that only FILE has after \"+\", as by tsv; only the texts count. The exit status\n"
         "is 1 when nothing is kept or no row differs.\n",
         RunKept},
};

} // namespace

std::size_t Verb::MostOperands() const {
    return static_cast<std::size_t>(std::count(operands.begin(), operands.end(), ' ')) + 1;
}

std::size_t Verb::LeastOperands() const {
    return MostOperands() - static_cast<std::size_t>(std::count(operands.begin(), operands.end(), '['));
}

std::span<const Verb> Verbs() {
    return kVerbs;
}

} // namespace korvane
