#include "read_fixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

namespace torvane::test {

namespace {

constexpr int kToolTimeoutMs = 120000;
const QString kClipSeconds = "3";

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

bool LogPasses(const QByteArray& log, const QByteArray& line) {
    if (log.count("\r\n") < 2)
        return false;
    QByteArray text = log;
    while (text.endsWith('\r') || text.endsWith('\n'))
        text.chop(1);
    const int lastEnd = text.lastIndexOf("\r\n");
    return text.mid(lastEnd < 0 ? 0 : lastEnd + 2).startsWith(line);
}

bool Succeeds(const QString& program, const QStringList& args, const QString& workDir) {
    QProcess process;
    process.setWorkingDirectory(workDir);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, args);
    return process.waitForFinished(kToolTimeoutMs) &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool ReadFixture::makeDisc(const QString& disc, const QString& kind, const QString& type) {
    const QString base = dir_.filePath(disc), clip = base + ".mpg", xml = base + ".xml";
    const QString ref = dir_.filePath("ref-" + disc);
    const auto build = [&](QStringList args) {
        return Succeeds("/usr/bin/vcdxbuild", args << xml, dir_.path());
    };
    const bool ok =
        Succeeds(TORVANE_FIXTURES "/make-media", {kind, kClipSeconds, clip}) &&
        Succeeds("/usr/bin/vcdxgen", {"--type=" + type, "--output-file=" + xml, clip}) &&
        build({"--cue-file=" + base + "-2352.cue", "--bin-file=" + base + "-2352.bin"}) &&
        build({"--sector-2336", "--cue-file=" + base + "-2336.cue",
               "--bin-file=" + base + "-2336.bin"}) &&
        build({"--image-type=nrg", "--nrg-file=" + base + ".nrg"}) && QDir().mkpath(ref) &&
        Succeeds("/usr/bin/vcdxrip", {"--output-file=ref.xml", "--cue-file=" + base + "-2352.cue"},
                 ref);
    if (!ok)
        QTest::qFail(qPrintable("making the " + disc + " fixture failed"), __FILE__, __LINE__);
    return ok;
}

bool ReadFixture::makeNonImages() {
    QFile random(image("random.bin")), empty(image("empty.bin")), damaged(image("damaged.bin"));
    if (!random.open(QIODevice::WriteOnly) || !empty.open(QIODevice::WriteOnly) ||
        !QFile::copy(image("vcd-2352.bin"), damaged.fileName()) ||
        !damaged.open(QIODevice::ReadWrite))
        return false;
    QByteArray bytes(700 * 2352, '\0');
    QRandomGenerator(7).fillRange(reinterpret_cast<quint32*>(bytes.data()), bytes.size() / 4);
    random.write(bytes);
    // An absurd segment count in INFO.VCD (sector 150, byte 54 of its user data): vcd-info
    // crashes on it.
    return damaged.seek(150 * 2352 + 24 + 54) && damaged.write("\x2c", 1) == 1;
}

bool ReadFixture::make() {
    return dir_.isValid() && QDir().mkpath(scratch()) && makeDisc("vcd", "ntsc-vcd", "vcd2") &&
           makeDisc("svcd", "pal-svcd", "svcd") && makeNonImages();
}

QMap<QString, QByteArray> ReadFixture::referenceMedia(const QString& disc) const {
    QMap<QString, QByteArray> media = FilesIn(dir_.filePath("ref-" + disc));
    media.remove("ref.xml");
    return media;
}

QString FreshFolder(const QString& parent, const QString& name) {
    const QString folder = parent + QLatin1Char('/') + name;
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    return folder;
}

QString LoneCopy(const QString& image, const QString& folder, const QString& name) {
    const QString copy = folder + QLatin1Char('/') + name;
    QFile::copy(image, copy);
    return copy;
}

QStringList EntriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden |
                                  QDir::System);
}

QMap<QString, QByteArray> FilesIn(const QString& folder) {
    QMap<QString, QByteArray> files;
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden | QDir::System))
        files.insert(name, ReadAll(dir.filePath(name)));
    return files;
}

AdapterRun RunAdapter(const QString& program, const QStringList& args, const QString& workDir,
                      const QString& tmpDir) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TMPDIR"), tmpDir);
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(workDir);
    const QString logPath = workDir + QStringLiteral("/log.txt");
    process.setStandardOutputFile(logPath);
    process.start(program, args);
    AdapterRun run;
    if (!process.waitForFinished(kToolTimeoutMs))
        return run;
    run.crashed = process.exitStatus() == QProcess::CrashExit;
    run.exitCode = process.exitCode();
    run.errors = process.readAllStandardError();
    run.log = ReadAll(logPath);
    QFile::remove(logPath);
    return run;
}

}  // namespace torvane::test
