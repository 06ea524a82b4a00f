#include "platform/screen_model.h"

#include <vterm.h>
#include <QStringList>
#include <utility>

namespace torvane::platform {

namespace {

// libvterm marks the right half of a wide character with this value.
constexpr uint32_t kWideCharacterContinuation = 0xFFFFFFFFu;

ScreenModel* Owner(void* user) {
    return static_cast<ScreenModel*>(user);
}

VTermColor ToVTerm(Rgb colour) {
    VTermColor result;
    vterm_color_rgb(&result, colour.red, colour.green, colour.blue);
    return result;
}

// A cell's colour as drawn: the default colours as they are now, not as they were when
// the cell was written, so that a change of colours recolours the whole screen.
Rgb Resolve(const VTermScreen* screen, VTermColor colour, Rgb defaultColour) {
    if (VTERM_COLOR_IS_DEFAULT_FG(&colour) || VTERM_COLOR_IS_DEFAULT_BG(&colour))
        return defaultColour;
    vterm_screen_convert_color_to_rgb(screen, &colour);
    return Rgb{colour.rgb.red, colour.rgb.green, colour.rgb.blue};
}

QString CellText(const VTermScreenCell& cell) {
    if (cell.chars[0] == kWideCharacterContinuation)
        return QString();
    if (cell.chars[0] == 0)
        return QStringLiteral(" ");
    QString text;
    for (int i = 0; i < VTERM_MAX_CHARS_PER_CELL && cell.chars[i] != 0; ++i) {
        const char32_t code = cell.chars[i];
        text += QString::fromUcs4(&code, 1);
    }
    return text;
}

VTermKey ToVTerm(SpecialKey key) {
    // In the order of SpecialKey.
    static constexpr VTermKey kKeys[] = {
        VTERM_KEY_UP,  VTERM_KEY_DOWN, VTERM_KEY_LEFT, VTERM_KEY_RIGHT,  VTERM_KEY_HOME,
        VTERM_KEY_END, VTERM_KEY_INS,  VTERM_KEY_DEL,  VTERM_KEY_PAGEUP, VTERM_KEY_PAGEDOWN};
    return kKeys[static_cast<int>(key)];
}

}  // namespace

std::unique_ptr<ScreenModel> ScreenModel::create(int rows, int columns) {
    if (rows <= 0 || columns <= 0)
        return nullptr;
    VTerm* terminal = vterm_new(rows, columns);
    if (terminal == nullptr)
        return nullptr;
    return std::unique_ptr<ScreenModel>(new ScreenModel(terminal, rows, columns));
}

void ScreenModel::deleteTerminal(VTerm* terminal) {
    if (terminal != nullptr)
        vterm_free(terminal);
}

ScreenModel::ScreenModel(VTerm* terminal, int rows, int columns)
    : terminal_(terminal, &ScreenModel::deleteTerminal), rows_(rows), columns_(columns) {
    // Lambdas in a member function may reach the private members; libvterm takes plain
    // function pointers, so none of them captures anything.
    static const VTermScreenCallbacks callbacks = [] {
        VTermScreenCallbacks c{};
        c.damage = [](VTermRect, void* user) {
            Owner(user)->notifyChanged();
            return 1;
        };
        c.moverect = [](VTermRect, VTermRect, void* user) {
            Owner(user)->notifyChanged();
            return 1;
        };
        c.movecursor = [](VTermPos, VTermPos, int, void* user) {
            Owner(user)->notifyChanged();
            return 1;
        };
        c.sb_pushline = [](int columns, const VTermScreenCell* cells, void* user) {
            Owner(user)->keepScrolledOffLine(columns, cells);
            return 1;
        };
        return c;
    }();
    vterm_set_utf8(terminal, 1);
    vterm_output_set_callback(
        terminal,
        [](const char* bytes, size_t length, void* user) { Owner(user)->output(bytes, length); },
        this);
    screen_ = vterm_obtain_screen(terminal);
    vterm_screen_set_callbacks(screen_, &callbacks, this);
    // Whole scrolls are reported once, not row by row: a chatty program scrolls a lot.
    vterm_screen_set_damage_merge(screen_, VTERM_DAMAGE_SCROLL);
    vterm_screen_reset(screen_, 1);
    setDefaultColours(defaultForeground_, defaultBackground_);
}

ScreenModel::~ScreenModel() = default;

void ScreenModel::feed(const QByteArray& bytes) {
    feed(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

void ScreenModel::feed(const char* bytes, std::size_t length) {
    if (length == 0)
        return;
    vterm_input_write(terminal_.get(), bytes, length);
    vterm_screen_flush_damage(screen_);
}

QString ScreenModel::text(int row, int column, int count) const {
    QString result;
    for (int c = column; c < column + count; ++c) {
        VTermScreenCell cell{};
        if (vterm_screen_get_cell(screen_, VTermPos{row, c}, &cell) == 0)
            result += QLatin1Char(' ');
        else
            result += CellText(cell);
    }
    return result;
}

QString ScreenModel::rowText(int row) const {
    return text(row, 0, columns_);
}

QString ScreenModel::screenText() const {
    QStringList rows;
    for (int row = 0; row < rows_; ++row) {
        QString line = rowText(row);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        rows << line;
    }
    return rows.join(QLatin1Char('\n'));
}

Cell ScreenModel::cell(int row, int column) const {
    VTermScreenCell raw{};
    Cell result{QStringLiteral(" "), defaultForeground_, defaultBackground_, false};
    if (vterm_screen_get_cell(screen_, VTermPos{row, column}, &raw) == 0)
        return result;
    result.text = CellText(raw);
    result.foreground = Resolve(screen_, raw.fg, defaultForeground_);
    result.background = Resolve(screen_, raw.bg, defaultBackground_);
    if (raw.attrs.reverse)
        std::swap(result.foreground, result.background);
    result.bold = raw.attrs.bold;
    return result;
}

void ScreenModel::keepScrolledOffLine(int columns, const void* cells) {
    const auto* row = static_cast<const VTermScreenCell*>(cells);
    QString line;
    for (int column = 0; column < columns; ++column)
        line += CellText(row[column]);
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    scrollback_.push_back(line);
    if (scrollback_.size() > static_cast<std::size_t>(kScrollbackLimit))
        scrollback_.pop_front();
}

std::optional<QString> ScreenModel::scrolledBackRow(int linesBack, int row) const {
    if (linesBack <= 0 || row >= linesBack)
        return std::nullopt;
    const int index = scrollbackLines() - linesBack + row;
    return index >= 0 ? scrollback_[static_cast<std::size_t>(index)] : QString();
}

CursorPosition ScreenModel::cursor() const {
    VTermPos position{};
    vterm_state_get_cursorpos(vterm_obtain_state(terminal_.get()), &position);
    return CursorPosition{position.row, position.col};
}

void ScreenModel::setDefaultColours(Rgb foreground, Rgb background) {
    defaultForeground_ = foreground;
    defaultBackground_ = background;
    const VTermColor fg = ToVTerm(foreground);
    const VTermColor bg = ToVTerm(background);
    vterm_state_set_default_colors(vterm_obtain_state(terminal_.get()), &fg, &bg);
    notifyChanged();
}

QByteArray ScreenModel::keySequence(SpecialKey key) {
    QByteArray bytes;
    capture_ = &bytes;
    vterm_keyboard_key(terminal_.get(), ToVTerm(key), VTERM_MOD_NONE);
    capture_ = nullptr;
    return bytes;
}

void ScreenModel::output(const char* bytes, std::size_t length) {
    if (capture_ != nullptr)
        capture_->append(bytes, static_cast<qsizetype>(length));
    else if (writer_)
        writer_(bytes, length);
}

void ScreenModel::notifyChanged() {
    if (changed_)
        changed_();
}

}  // namespace torvane::platform
