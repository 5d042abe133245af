#include "platform/windows/ExcelAutomation.h"

#include "platform/windows/WindowsText.h"

#include <objbase.h>
#include <oleauto.h>

#include <initializer_list>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace korvane {

namespace {

/// A value for a call by name, which frees its text.
class Argument {
public:
    Argument(TextView text) { // NOLINT(google-explicit-constructor): the calls read like those of Excel's own
                              // language
        const std::wstring wide = ToWide(text);
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    }
    Argument(int number) { // NOLINT(google-explicit-constructor)
        value_.vt = VT_I4;
        value_.lVal = number;
    }
    Argument(bool yes) { // NOLINT(google-explicit-constructor)
        value_.vt = VT_BOOL;
        value_.boolVal = yes ? VARIANT_TRUE : VARIANT_FALSE;
    }
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;
    ~Argument() { VariantClear(&value_); }

    const VARIANT& Value() const { return value_; }

private:
    VARIANT value_{};
};

using Arguments = std::initializer_list<Argument>;

std::span<const Argument> Span(const Arguments& arguments) {
    return {arguments.begin(), arguments.size()};
}

/// Calls a member by its name. Nothing is called on no object. The result is false when it fails.
bool Invoke(IDispatch* object, const wchar_t* member, WORD kind, std::span<const Argument> arguments,
            VARIANT* result) {
    if (object == nullptr) return false;
    std::wstring name = member;
    LPOLESTR names = name.data();
    DISPID id = 0;
    if (FAILED(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return false;
    // The call wants them from the last to the first.
    std::vector<VARIANT> values(arguments.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        values[values.size() - 1 - i] = arguments[i].Value();
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS call{values.data(), nullptr, static_cast<UINT>(values.size()), 0};
    if (kind == DISPATCH_PROPERTYPUT) {
        call.rgdispidNamedArgs = &assigned;
        call.cNamedArgs = 1;
    }
    return SUCCEEDED(
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &call, result, nullptr, nullptr));
}

bool Set(IDispatch* object, const wchar_t* property, const Argument& value) {
    return Invoke(object, property, DISPATCH_PROPERTYPUT, {&value, 1}, nullptr);
}

bool Call(IDispatch* object, const wchar_t* method, Arguments arguments = {}) {
    VARIANT result{};
    const bool called = Invoke(object, method, DISPATCH_METHOD, Span(arguments), &result);
    VariantClear(&result);
    return called;
}

/// A part of an object; nullptr when there is none.
AutomationObject Get(IDispatch* object, const wchar_t* property, Arguments arguments = {}) {
    VARIANT result{};
    Invoke(object, property, DISPATCH_PROPERTYGET | DISPATCH_METHOD, Span(arguments), &result);
    if (result.vt == VT_DISPATCH) return AutomationObject(result.pdispVal);
    VariantClear(&result);
    return nullptr;
}

} // namespace

ExcelAutomation::ExcelAutomation(AutomationObject application) : application_(std::move(application)) {}

ExcelAutomation::~ExcelAutomation() {
    if (visible_) return;
    Set(application_.get(), L"DisplayAlerts", false);
    Call(application_.get(), L"Quit");
}

void ExcelAutomation::AddWorkbook() {
    Call(Get(application_.get(), L"Workbooks").get(), L"Add");
}

bool ExcelAutomation::SelectRange(TextView cell) {
    return Call(Get(application_.get(), L"Range", {cell}).get(), L"Select");
}

void ExcelAutomation::SetActiveCellValue(TextView value) {
    Set(Get(application_.get(), L"ActiveCell").get(), L"Value", value);
}

void ExcelAutomation::SetColumnWidth(TextView column, int characters) {
    Set(Get(application_.get(), L"Range", {column}).get(), L"ColumnWidth", characters);
}

void ExcelAutomation::SetInteriorColorIndex(TextView cell, int index) {
    const AutomationObject range = Get(application_.get(), L"Range", {cell});
    Set(Get(range.get(), L"Interior").get(), L"ColorIndex", index);
}

bool ExcelAutomation::SaveAs(TextView path, int format) {
    Set(application_.get(), L"DisplayAlerts", false);
    const bool saved = Call(Get(application_.get(), L"ActiveWorkbook").get(), L"SaveAs", {path, format});
    Set(application_.get(), L"DisplayAlerts", true);
    return saved;
}

void ExcelAutomation::MakeVisible() {
    visible_ = Set(application_.get(), L"Visible", true);
}

std::unique_ptr<Spreadsheet> StartExcel() {
    CLSID excel{};
    void* application = nullptr;
    if (FAILED(CLSIDFromProgID(L"Excel.Application", &excel)) ||
        FAILED(CoCreateInstance(excel, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, &application)))
        return nullptr;
    return std::make_unique<ExcelAutomation>(AutomationObject(static_cast<IDispatch*>(application)));
}

} // namespace korvane
