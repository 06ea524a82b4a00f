#pragma once
// The form that VCDXBUILD and lkVCDxBUILD share: an XML descriptor made into a disc
// image, CUE/BIN or CDRDAO/TOC (or, with the fork, Nero), with the image size reported
// from the job log and, on request, a cue sheet without subindices.

#include "core/vcdxbuild_builder.h"
#include "forms/tool_dialog.h"

#include <QString>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

// The texts and choices in which the two forms differ.
// Set field by field, by name (see a form's Text()).
struct BuildToolText {
    const char* formName = nullptr;
    const char* caption = nullptr;
    const char* consoleTitle = nullptr;
    const char* folderWord = nullptr;  // of the tool folder
    const char* aboutCaption = nullptr;
    const char* frameTitle = nullptr;
    const char* frameText = nullptr;
    bool withNrg = false;  // the fork's third image type
    VcdxbuildJob (*buildJob)(const VcdxbuildInputs&) = nullptr;
};

class BuildToolForm : public ToolDialog {
    Q_OBJECT
public:
    BuildToolForm(const ToolContext& context, const BuildToolText& text);

    void cmd_rip_Click() override;

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QRadioButton* opt_cuebin;
    QRadioButton* opt_toc;
    QRadioButton* opt_nrg = nullptr;  // lkVCDxBUILD only
    QCheckBox* chk_s2336;
    QCheckBox* chk_subindex;

    QString cue_path;  // the cue sheet of the job; set only with CUE/BIN

private:
    void buildControls();
    void connectControls();
    void cmd_output_Click();
    void applyInterlocks() override;
    VcdxbuildInputs inputs() const;
    void report() override;

    const BuildToolText& text_;
};

}  // namespace torvane
