#include "about/text_pane.h"

#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextDocument>
#include <cmath>

namespace torvane {

QPlainTextEdit* NewTextPane(QWidget* parent, const char* name, int columns, int lines) {
    auto* pane = new QPlainTextEdit(parent);
    pane->setObjectName(QLatin1String(name));
    pane->setReadOnly(true);
    pane->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    pane->setFont(font);

    // The text's own margins, the frame's, and one more character for the cursor.
    const QFontMetrics metrics(pane->font());
    const int margins =
        2 * (pane->frameWidth() + static_cast<int>(std::ceil(pane->document()->documentMargin())));
    const int width = metrics.horizontalAdvance(QString(columns + 1, QLatin1Char('M'))) + margins +
                      pane->verticalScrollBar()->sizeHint().width();
    pane->setFixedSize(width, metrics.lineSpacing() * lines + margins);
    return pane;
}

}  // namespace torvane
