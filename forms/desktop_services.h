#pragma once
// The real modal services: QMessageBox, QFileDialog and the desktop's handlers.

#include "core/services.h"

namespace torvane {

class QtMessageBoxes : public MessageBoxes {
public:
    int show(const MessageBoxRequest& request) override;
};

class QtFileDialogs : public FileDialogs {
public:
    std::optional<QString> openFileName(const QString& filter, int filterIndex,
                                        const QString& folder) override;
    std::optional<QString> saveFileName(const QString& filter, int filterIndex,
                                        const QString& folder) override;
    std::optional<QString> existingFolder(const QString& folder) override;
};

class QtDesktop : public Desktop {
public:
    bool openInViewer(const QString& path) override;
    bool openUrl(const QString& url) override;
};

// A lone CR is a line break on screen; the text the program holds keeps its CRs.
QString DisplayText(const QString& text);

}  // namespace torvane
