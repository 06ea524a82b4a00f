#include "core/services.h"

namespace torvane {

namespace {

int Show(MessageBoxes& boxes, const QString& title, const QString& text,
         MessageBoxRequest::Buttons buttons, MessageBoxRequest::Icon icon, int defaultAnswer) {
    MessageBoxRequest request;
    request.title = title;
    request.text = text;
    request.buttons = buttons;
    request.icon = icon;
    request.defaultAnswer = defaultAnswer;
    return boxes.show(request);
}

}  // namespace

int InformationBox(MessageBoxes& boxes, const QString& title, const QString& text) {
    return Show(boxes, title, text, MessageBoxRequest::Buttons::Ok,
                MessageBoxRequest::Icon::Information, vbOK);
}

int ConfirmationBox(MessageBoxes& boxes, const QString& title, const QString& text) {
    return Show(boxes, title, text, MessageBoxRequest::Buttons::YesNo,
                MessageBoxRequest::Icon::Information, vbNo);
}

int QuestionBox(MessageBoxes& boxes, const QString& title, const QString& text) {
    return Show(boxes, title, text, MessageBoxRequest::Buttons::YesNo,
                MessageBoxRequest::Icon::Information, vbYes);
}

int PlainBox(MessageBoxes& boxes, const QString& text) {
    return Show(boxes, QString(), text, MessageBoxRequest::Buttons::Ok,
                MessageBoxRequest::Icon::None, vbOK);
}

}  // namespace torvane
