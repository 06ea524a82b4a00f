#pragma once
// What the lkVCDxRIP dialog turns its inputs into: the validation message, the fork's
// slash switches, the command line, the job script, the rename of videocd.xml and the
// report texts.

#include "core/job_plan.h"

#include <QChar>
#include <QString>

namespace torvane {

struct LkvcdxripInputs {
    QString input;            // txt_input: the disc image, in image mode
    QString output;           // txt_output: the name videocd.xml gets
    bool fromDrive = false;   // opt_cddrive selected
    QString drive;            // the text of list_cd: description and "1, 0, 0"
    QString driver;           // the text of list_driver
    bool sector2336 = false;  // chk_s2336 ticked, enabled or not
    bool noExtPsd = false;    // chk_noextpsd ticked
    bool norip = false;       // chk_norip ticked
    QString toolFolder;       // ends in a separator
    QChar sep;
};

// The first failing check's message, or empty when Go may go on.
QString LkvcdxripValidation(const LkvcdxripInputs& in);

// Job, script and log in the output folder, to which the tool is pointed.
JobPlan BuildLkvcdxripJob(const LkvcdxripInputs& in);

// Where the tool writes its descriptor: output_dir + "videocd.xml".
QString LkvcdxripDescriptor(const LkvcdxripInputs& in);

// The question box of a failed job, which offers the log.
QString LkvcdxripFailureQuestion();

}  // namespace torvane
