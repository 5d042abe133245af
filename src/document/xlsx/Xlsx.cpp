#include "document/xlsx/Xlsx.h"

#include "document/model/Builder.h"
#include "document/package/Package.h"
#include "document/package/Xml.h"
#include "document/xlsx/Sheet.h"

#include <map>
#include <utility>

namespace korvane::doc {

namespace {

class XlsxReader {
public:
    XlsxReader(std::string_view bytes, const Limits& limits)
        : limits_(limits), package_(bytes, limits), builder_(limits) {}

    ReadResult Read() {
        const std::string main = package_.OverLimit() ? std::string() : package_.MainPart();
        if (main.empty()) return Failed();
        for (Package::Relation& relation : package_.Relations(main)) {
            if (relation.type == "sharedStrings")
                shared_ = xlsx::ReadSharedTexts(package_.Part(relation.target).value_or(""), limits_);
            if (relation.type == "worksheet" && !relation.external)
                parts_[relation.id] = std::move(relation.target);
        }
        ReadWorkbook(main);
        if (package_.OverLimit()) builder_.Tell(Trouble::OverLimit);
        result_.document = builder_.Finish({});
        result_.Tell(builder_.Told());
        return std::move(result_);
    }

private:
    ReadResult Failed() {
        result_.Tell(package_.OverLimit() ? Trouble::OverLimit : Trouble::WrongFormat);
        return std::move(result_);
    }

    void ReadWorkbook(const std::string& main) {
        bool workbook = false;
        XmlHandlers handlers;
        handlers.open = [&](std::string_view name, const XmlAttributes& attributes) {
            workbook = workbook || name == "workbook";
            if (name != "sheet" || builder_.Full()) return;
            // The id of the sheet is under the name "id" too, with another prefix.
            const auto part = parts_.find(std::string(attributes.Get("id")));
            if (part != parts_.end()) PutSheet(FromUtf8(attributes.Get("name")), part->second);
        };
        handlers.close = [](std::string_view) {};
        const XmlOutcome outcome = ReadXml(package_.Part(main).value_or(""), handlers);
        if (outcome != XmlOutcome::Whole) builder_.Tell(Trouble::Damaged);
        if (!workbook) builder_.Tell(Trouble::WrongFormat);
    }

    void PutSheet(TextView name, const std::string& part) {
        const auto xml = package_.Part(part);
        if (!xml) return builder_.Tell(Trouble::Damaged);
        xlsx::PutSheet(builder_, name, xlsx::ReadSheet(*xml, shared_, limits_));
    }

    const Limits& limits_;
    Package package_;
    Builder builder_;
    std::vector<Text> shared_;
    /// The parts of the sheets by their ids.
    std::map<std::string, std::string> parts_;
    ReadResult result_;
};

} // namespace

ReadResult ReadXlsx(std::string_view bytes, const Limits& limits) {
    return XlsxReader(bytes, limits).Read();
}

} // namespace korvane::doc
