#include "core/file_filter.h"

#include <QRegularExpression>

namespace torvane {

namespace {

// "MPEG Files (*.mpg, *.mpeg)" -> "MPEG Files": Qt appends the real patterns itself.
QString DescriptionWithoutPatterns(const QString& description) {
    static const QRegularExpression trailingGroup(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    QString words = description;
    words.remove(trailingGroup);
    return words.isEmpty() ? description : words;
}

}  // namespace

QStringList QtNameFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList result;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (QString& pattern : patterns) {
            pattern = pattern.trimmed();
            if (pattern == QLatin1String("*.*"))
                pattern = QStringLiteral("*");
        }
        result << DescriptionWithoutPatterns(parts[i]) + QStringLiteral(" (") +
                      patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return result;
}

}  // namespace torvane
