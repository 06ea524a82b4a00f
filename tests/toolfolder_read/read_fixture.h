#pragma once
// Discs for the reading adapters, made at test time with ffmpeg and Debian's own vcdxgen
// and vcdxbuild: a VCD and an SVCD of a short clip, each as a 2352-byte and a 2336-byte
// CUE/BIN pair and as an NRG. The reference rip of each disc is what the real
// vcdxrip gives from the 2352-byte image with its cue sheet. Beside them, files that are
// no image: random bytes, an empty file, and the VCD with a damaged INFO.VCD.

#include <QByteArray>
#include <QMap>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

namespace torvane::test {

// What an adapter run leaves: its exit, its standard output as the job's log, its errors.
struct AdapterRun {
    bool crashed = false;  // ended by a signal
    int exitCode = -1;
    QByteArray log;
    QByteArray errors;
};

class ReadFixture {
public:
    // Makes the discs; false, after a test failure message, when a step fails.
    bool make();

    // A file by name: "vcd-2352.bin", "vcd-2336.bin", "svcd-2352.bin", "svcd-2336.bin",
    // "vcd.nrg", "svcd.nrg", the cue sheets and clips ("vcd.mpg"), "random.bin", "empty.bin",
    // "damaged.bin".
    QString image(const QString& name) const { return dir_.filePath(name); }
    // The reference rip of "vcd" or "svcd": media file name -> contents.
    QMap<QString, QByteArray> referenceMedia(const QString& disc) const;
    QString scratch() const { return dir_.filePath(QStringLiteral("scratch")); }

private:
    bool makeDisc(const QString& disc, const QString& kind, const QString& type);
    bool makeNonImages();
    QTemporaryDir dir_;
};

// A fresh empty folder under `parent` at the relative path `name` (may hold blanks,
// shell characters and non-ASCII letters).
QString FreshFolder(const QString& parent, const QString& name);

// Copies `image` into `folder` under `name`; returns the copy's path.
QString LoneCopy(const QString& image, const QString& folder, const QString& name);

// The names of all entries in `folder`; its plain files, name -> contents.
QStringList EntriesOf(const QString& folder);
QMap<QString, QByteArray> FilesIn(const QString& folder);

// Runs `program` with `args` in `workDir`, standard output into `workDir`/log.txt as a
// job script's redirection does, TMPDIR set to `tmpDir`.
AdapterRun RunAdapter(const QString& program, const QStringList& args, const QString& workDir,
                      const QString& tmpDir);

// The success test that the dialogs apply to a job log: at least two CR LF pairs, and the
// last line that is not empty (lines are separated by CR LF only) begins with `line`.
bool LogPasses(const QByteArray& log, const QByteArray& line);

// True if `program` run with `args` exits with 0.
bool Succeeds(const QString& program, const QStringList& args, const QString& workDir = {});

}  // namespace torvane::test
