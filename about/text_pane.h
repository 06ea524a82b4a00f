#pragma once
// The read-only text pane of the About boxes: fixed-pitch text with a vertical scroll bar,
// as wide as a given number of characters, so that texts written to that width never wrap.

class QPlainTextEdit;
class QWidget;

namespace torvane {

QPlainTextEdit* NewTextPane(QWidget* parent, const char* name, int columns, int lines);

}  // namespace torvane
