#pragma once
// What VCDXGEN and VCDIMAGER share: the MPEG list, the disc settings, their checks at Go,
// their part of the command line, and the shape of the job, which runs in the tool folder
// so that the tool, the script and the list file are found by their bare names.

#include "core/job_plan.h"
#include "core/mpeg_list.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <optional>

namespace torvane {

enum class DiscType { Vcd11, Vcd2, Svcd, Hqvcd };

struct DiscSettings {
    MpegList files;                   // file_count, file_list
    QString output;                   // txt_output
    DiscType type = DiscType::Vcd2;   // the selected option button
    QString volumeLabel = "VIDEOCD";  // txt_volumelabel
    QString albumId = "MYVCD";        // txt_albumid
    QString volumeCount = "1";        // txt_volumecount
    QString volumeNumber = "1";       // txt_volumenumber
    bool brokenSvcd = false;          // chk_brokensvcd ticked
    bool updateScanOffsets = true;    // chk_update ticked
    QString toolFolder;               // ends in a separator
    QChar sep;
};

// Whether chk_brokensvcd and chk_update are enabled, and so count: with SVCD and HQVCD.
bool SvcdOptionsCount(DiscType type);

// The first failing check's message, or empty when Go may go on.
QString DiscSettingsValidation(const DiscSettings& disc);

// " --broken-svcd-mode" and " --update-scan-offsets", as ticked and counting.
QString SvcdOptionSwitches(const DiscSettings& disc);

// What differs between the two tools' jobs.
struct ListToolJobText {
    QString tool;        // "vcdxgen.exe"
    QString banner;      // of the script
    QString outputEcho;  // "echo Output XML file: "
    QString optionSwitches;
    QString outputSwitches;  // --output-file=..., or the file switches
};

// The job in the tool folder, its log beside the output; the list file, which the form
// writes, is ListFilePath().
JobPlan BuildListToolJob(const DiscSettings& disc, const ListToolJobText& text);
QString ListFilePath(const DiscSettings& disc);

// The failure box of both tools.
QString ListToolFailureText();

// The outcome of a job, read from its log.
struct ListToolReport {
    bool succeeded = false;
    QString text;  // the confirmation box on success, the information box otherwise
};

}  // namespace torvane
