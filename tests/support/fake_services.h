#pragma once
// Stand-ins for the modal services: they record what was shown and give the answers a
// test has queued. An unexpected box (none queued) is answered with its default and
// recorded all the same, so a test can tell it came.

#include "job/services.h"

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace torvane::test {

class FakeMessageBoxes : public MessageBoxes {
public:
    int show(const MessageBoxRequest& request) override {
        shown.push_back(request);
        if (onShow)
            onShow(request);
        if (answers.empty())
            return request.defaultAnswer;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::vector<MessageBoxRequest> shown;
    std::deque<int> answers;
    std::function<void(const MessageBoxRequest&)> onShow;  // runs while the box is "open"
};

class FakeFileDialogs : public FileDialogs {
public:
    struct Call {
        bool save;
        QString filter;
        int filterIndex;
        QString folder;
    };
    std::optional<QString> openFileName(const QString& filter, int filterIndex,
                                        const QString& folder) override {
        return next({false, filter, filterIndex, folder});
    }
    std::optional<QString> saveFileName(const QString& filter, int filterIndex,
                                        const QString& folder) override {
        return next({true, filter, filterIndex, folder});
    }
    std::vector<Call> calls;
    std::deque<std::optional<QString>> names;  // nullopt: the user cancels

private:
    std::optional<QString> next(const Call& call) {
        calls.push_back(call);
        if (names.empty())
            return std::nullopt;
        const std::optional<QString> name = names.front();
        names.pop_front();
        return name;
    }
};

class FakeDesktop : public Desktop {
public:
    bool openInViewer(const QString& path) override {
        viewed << path;
        return viewerFound;
    }
    void openUrl(const QString& url) override { urls << url; }
    QStringList viewed;
    QStringList urls;
    bool viewerFound = true;  // false: the desktop has no program for the file
};

struct FakeServices {
    FakeMessageBoxes boxes;
    FakeFileDialogs files;
    FakeDesktop desktop;
    Services services{boxes, files, desktop};
};

}  // namespace torvane::test
