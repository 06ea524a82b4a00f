#pragma once
// The form that VCDXGEN and VCDIMAGER share: MPEG files picked in the list dialog, an
// output file, the disc type and settings, and a job in the tool folder. Each tool adds
// its own first check box (No PBC, or 2336-byte sectors), texts, job and report.

#include "core/disc_settings.h"
#include "forms/tool_dialog.h"

#include <QString>
#include <QStyle>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

// The texts and choices in which the two forms differ.
// Set field by field, by name (see a form's Text()).
struct DiscToolText {
    const char* formName = nullptr;  // "frm_vcdxgen"
    const char* caption = nullptr;
    const char* consoleTitle = nullptr;
    const char* loadFormName = nullptr;  // the list dialog's name
    const char* outputLabel = nullptr;
    const char* outputLabelTip = nullptr;
    const char* outputTip = nullptr;
    const char* outputBrowseTip = nullptr;
    const QString* outputFilter = nullptr;
    const char* firstBoxName = nullptr;
    const char* firstBoxCaption = nullptr;
    const char* firstBoxTip = nullptr;
    // Whether the first check box is enabled with a type.
    bool (*firstBoxCounts)(DiscType) = nullptr;
    // The job of the settings and the first box's tick, and the outcome read from its log.
    JobPlan (*buildJob)(const DiscSettings&, bool firstBoxTicked) = nullptr;
    ListToolReport (*buildReport)(const std::optional<QByteArray>& log) = nullptr;
    bool opensLog = false;  // Yes to the question opens the log; otherwise the output
    const char* aboutCaption = nullptr;
    const char* frameTitle = nullptr;
    const char* frameText = nullptr;
    QStyle::StandardPixmap picture = QStyle::SP_CustomBase;
};

class DiscToolForm : public ToolDialog {
    Q_OBJECT
public:
    DiscToolForm(const ToolContext& context, const DiscToolText& text);

    void cmd_input_Click();
    void cmd_rip_Click() override;

    QLabel* lbl_input;
    QLabel* Label2;
    QLineEdit* txt_inputnumber;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QLabel* Label3;
    QRadioButton* opt_vcd11;
    QRadioButton* opt_vcd2;
    QRadioButton* opt_svcd;
    QRadioButton* opt_hqvcd;
    QLabel* Label4;
    QLineEdit* txt_volumelabel;
    QLabel* Label5;
    QLineEdit* txt_albumid;
    QLabel* Label6;
    QLineEdit* txt_volumecount;
    QLabel* Label7;
    QLineEdit* txt_volumenumber;
    QCheckBox* firstBox;  // chk_nopbc or chk_s2336
    QCheckBox* chk_brokensvcd;
    QCheckBox* chk_update;

    int16_t file_count = 0;
    QString file_list;
    QString list_path;
    QString Tag;  // the channel to the list dialog, empty outside that exchange

private:
    void buildControls();
    void Form_Load();
    DiscType selectedType() const;
    DiscSettings settings() const;
    void applyInterlocks() override;
    void report() override;

    const DiscToolText& text_;
};

}  // namespace torvane
