#pragma once

#include "context/FileInfoForm.h"

namespace korvane {

class App;

/// What `frmTxtInfo` shows of a file, as texts.
struct FileFacts {
    Text name;
    Text folder;
    Text size;
    Text date;
};

/// The facts of a file: its size as "###,###,###" and its date, or "0" and "(not yet saved!)" when the path
/// is empty or there is no such file.
FileFacts FactsOfFile(const App& app, TextView path);

/// Shows the facts of a file. Modal.
class frmTxtInfo : public FileInfoForm {
public:
    frmTxtInfo(App& app, const FileFacts& facts);

private:
    Text Facts() const override;
};

} // namespace korvane
