#pragma once
// Stand-ins for the modal services: they record what was shown and give the answers a
// test has queued. An unexpected box (none queued) is answered with its default and
// recorded all the same, so a test can tell it came.

#include "core/services.h"

#include <QApplication>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace torvane::test {

template <typename T>
T TakeFirst(std::deque<T>& queue, T none) {
    if (!queue.empty()) {
        none = std::move(queue.front());
        queue.pop_front();
    }
    return none;
}

class FakeMessageBoxes : public MessageBoxes {
public:
    int show(const MessageBoxRequest& request) override {
        shown.push_back(request);
        if (onShow)
            onShow(request);
        return TakeFirst(answers, request.defaultAnswer);
    }
    std::vector<MessageBoxRequest> shown;
    std::deque<int> answers;
    std::function<void(const MessageBoxRequest&)> onShow;  // runs while the box is "open"
};

class FakeFileDialogs : public FileDialogs {
public:
    std::optional<QString> openFileName(const QString&, int, const QString&) override {
        return TakeFirst(names, std::optional<QString>());
    }
    std::optional<QString> saveFileName(const QString&, int, const QString&) override {
        return TakeFirst(names, std::optional<QString>());
    }
    std::optional<QString> existingFolder(const QString&) override {
        return TakeFirst(names, std::optional<QString>());
    }
    std::deque<std::optional<QString>> names;  // nullopt: the user cancels
};

class FakeDesktop : public Desktop {
public:
    bool openInViewer(const QString& path) override {
        viewed << path;
        return viewerFound;
    }
    bool openUrl(const QString& url) override {
        urls << url;
        return viewerFound;
    }
    QStringList viewed;
    QStringList urls;
    bool viewerFound = true;  // false: the desktop has no program for the file or link
};

// The shown window named "frm_" and `key` (a tool dialog, or "about_component"), or null:
// one that has just closed may linger until it is deleted.
inline QWidget* ComponentDialog(const QString& key) {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == QStringLiteral("frm_") + key && widget->isVisible())
            return widget;
    return nullptr;
}

struct FakeServices {
    FakeMessageBoxes boxes;
    FakeFileDialogs files;
    FakeDesktop desktop;
    Services services{boxes, files, desktop};
};

}  // namespace torvane::test
