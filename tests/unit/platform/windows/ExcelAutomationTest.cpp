#include "platform/windows/ExcelAutomation.h"

#include "platform/windows/WindowsText.h"

#include <gtest/gtest.h>
#include <oleauto.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace korvane {
namespace {

/// What was called, in order, and which members fail.
struct Record {
    std::vector<std::string> calls;
    std::set<std::string> fails;
    int objects = 0;
};

std::string TextOf(const VARIANT& value) {
    if (value.vt == VT_BSTR)
        return "'" + ToUtf8(FromWide({value.bstrVal, SysStringLen(value.bstrVal)})) + "'";
    if (value.vt == VT_BOOL) return value.boolVal == VARIANT_TRUE ? "True" : "False";
    if (value.vt == VT_I4) return std::to_string(value.lVal);
    return "?";
}

/// An object of an application that writes down what is done to it. Each of its members is an object too.
class Recorded final : public IDispatch {
public:
    Recorded(Record& record, std::string path) : record_(record), path_(std::move(path)) {
        ++record_.objects;
    }
    virtual ~Recorded() { --record_.objects; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) std::default_delete<Recorded>()(this);
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        member_ = ToUtf8(FromWide(names[0]));
        ids[0] = kMember;
        return record_.fails.contains(member_) ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* call, VARIANT* result,
                                     EXCEPINFO*, UINT*) override {
        EXPECT_EQ(id, kMember);
        std::string path = path_.empty() ? member_ : path_ + "." + member_;
        if (kind == DISPATCH_PROPERTYPUT) {
            EXPECT_EQ(call->cNamedArgs, 1U);
            EXPECT_EQ(call->rgdispidNamedArgs[0], DISPID_PROPERTYPUT);
            record_.calls.push_back(path + " = " + TextOf(call->rgvarg[0]));
            return S_OK;
        }
        std::string arguments;
        for (UINT i = call->cArgs; i > 0; --i)
            arguments += (arguments.empty() ? "" : ", ") + TextOf(call->rgvarg[i - 1]);
        if (!arguments.empty()) path += "(" + arguments + ")";
        if (kind == DISPATCH_METHOD) record_.calls.push_back(path);
        result->vt = VT_DISPATCH;
        result->pdispVal = std::make_unique<Recorded>(record_, path).release();
        return S_OK;
    }

private:
    static constexpr DISPID kMember = 7;
    Record& record_;
    std::string path_;
    std::string member_;
    ULONG references_ = 1;
};

class ExcelAutomationTest : public testing::Test {
protected:
    ~ExcelAutomationTest() override {
        excel.reset();
        EXPECT_EQ(record.objects, 0) << "objects of the application are still held";
    }

    Record record;
    std::unique_ptr<Spreadsheet> excel =
        std::make_unique<ExcelAutomation>(AutomationObject(std::make_unique<Recorded>(record, "").release()));
};

using Calls = std::vector<std::string>;

TEST_F(ExcelAutomationTest, EachStepIsACallOfExcels) {
    excel->AddWorkbook();
    EXPECT_TRUE(excel->SelectRange(u"B3"));
    excel->SetActiveCellValue(u"\u017Bubr");
    excel->SetColumnWidth(u"B:B", 32);
    excel->SetInteriorColorIndex(u"B1", 35);
    excel->MakeVisible();
    EXPECT_EQ(record.calls, (Calls{"Workbooks.Add", "Range('B3').Select", "ActiveCell.Value = '\u017Bubr'",
                                   "Range('B:B').ColumnWidth = 32", "Range('B1').Interior.ColorIndex = 35",
                                   "Visible = True"}));
}

TEST_F(ExcelAutomationTest, ASaveAsksNothing) {
    EXPECT_TRUE(excel->SaveAs(u"C:\\a b.xls", kNormalWorkbook));
    EXPECT_EQ(record.calls, (Calls{"DisplayAlerts = False", "ActiveWorkbook.SaveAs('C:\\a b.xls', -4143)",
                                   "DisplayAlerts = True"}));
}

TEST_F(ExcelAutomationTest, AStepThatFailsSaysSoAndTheNextOneRuns) {
    record.fails = {"SaveAs", "Select", "Range"};
    EXPECT_FALSE(excel->SaveAs(u"C:\\a.xls", kNormalWorkbook));
    EXPECT_FALSE(excel->SelectRange(u"A1"));
    excel->SetColumnWidth(u"B:B", 32);
    excel->SetActiveCellValue(u"x");
    EXPECT_EQ(record.calls.back(), "ActiveCell.Value = 'x'");
}

TEST_F(ExcelAutomationTest, AnApplicationThatTheUserNeverSawIsEnded) {
    excel->AddWorkbook();
    excel.reset();
    EXPECT_EQ(record.calls, (Calls{"Workbooks.Add", "DisplayAlerts = False", "Quit"}));
}

TEST_F(ExcelAutomationTest, AnApplicationThatTheUserSeesGoesOn) {
    excel->MakeVisible();
    excel.reset();
    EXPECT_EQ(record.calls, (Calls{"Visible = True"}));
}

} // namespace
} // namespace korvane
