#include "ui/cSendKeys.h"

#include "platform/forms/Screen.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

const QHash<QString, int>& namedKeys()
{
    static const QHash<QString, int> keys = [] {
        QHash<QString, int> named{{u"BACKSPACE"_s, Qt::Key_Backspace},
                                  {u"BS"_s, Qt::Key_Backspace},
                                  {u"BKSP"_s, Qt::Key_Backspace},
                                  {u"BREAK"_s, Qt::Key_Cancel},
                                  {u"CAPSLOCK"_s, Qt::Key_CapsLock},
                                  {u"DELETE"_s, Qt::Key_Delete},
                                  {u"DEL"_s, Qt::Key_Delete},
                                  {u"DOWN"_s, Qt::Key_Down},
                                  {u"END"_s, Qt::Key_End},
                                  {u"ENTER"_s, Qt::Key_Return},
                                  {u"ESC"_s, Qt::Key_Escape},
                                  {u"HELP"_s, Qt::Key_Help},
                                  {u"HOME"_s, Qt::Key_Home},
                                  {u"INS"_s, Qt::Key_Insert},
                                  {u"INSERT"_s, Qt::Key_Insert},
                                  {u"LEFT"_s, Qt::Key_Left},
                                  {u"NUMLOCK"_s, Qt::Key_NumLock},
                                  {u"PGDN"_s, Qt::Key_PageDown},
                                  {u"PGUP"_s, Qt::Key_PageUp},
                                  {u"PRTSC"_s, Qt::Key_Print},
                                  {u"RIGHT"_s, Qt::Key_Right},
                                  {u"SCROLLLOCK"_s, Qt::Key_ScrollLock},
                                  {u"TAB"_s, Qt::Key_Tab},
                                  {u"UP"_s, Qt::Key_Up}};
        for (int number = 1; number <= 16; ++number)
            named.insert(u"F%1"_s.arg(number), Qt::Key_F1 + number - 1);
        return named;
    }();
    return keys;
}

Qt::KeyboardModifier modifierOfKey(int key)
{
    switch (key) {
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

/// What a key writes of itself; a named key other than Enter, Backspace and Esc writes nothing.
QString textOfKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
        return u"\r"_s;
    case Qt::Key_Backspace:
        return u"\b"_s;
    case Qt::Key_Escape:
        return u"\x1b"_s;
    default:
        return key < Qt::Key_Escape ? QString(QChar(key)).toLower() : QString();
    }
}

} // namespace

/// Reads a text in the notation from left to right. Positions in errors count from 1.
class cSendKeys::Reader
{
public:
    explicit Reader(const QString& keys)
        : m_keys(keys)
    {
    }

    std::vector<Stroke> read()
    {
        while (m_at < m_keys.size())
            readOne();
        if (!m_groups.empty())
            throw Error(u"Invalid sendkeys command: more open brackets than close brackets."_s);
        return std::move(m_strokes);
    }

private:
    void readOne()
    {
        const QChar next = m_keys.at(m_at);
        switch (next.unicode()) {
        case '+':
            m_next |= Qt::ShiftModifier;
            break;
        case '^':
            m_next |= Qt::ControlModifier;
            break;
        case '%':
            m_next |= Qt::AltModifier;
            break;
        case '~':
            add(u"ENTER"_s, 1);
            break;
        case '(':
            m_groups.push_back(std::exchange(m_next, Qt::NoModifier));
            break;
        case ')':
            if (m_groups.empty())
                throw Error(u"Invalid sendkeys command: unmatched ) at position "_s + position());
            m_groups.pop_back();
            break;
        case '{':
            readBraces();
            break;
        default:
            add(next, 1);
        }
        ++m_at;
    }

    void readBraces()
    {
        const QStringView rest = QStringView(m_keys).mid(m_at + 1);
        // A closing bracket can itself be the key: {}} or {} 3}.
        const bool closingIsKey = rest.startsWith("}}"_L1) || rest.startsWith("} "_L1);
        if (rest.isEmpty() || (rest.startsWith(u'}') && !closingIsKey))
            throw Error(u"Invalid sendkeys command; opening { without content or closing } at position "_s +
                        position());
        const qsizetype close = rest.indexOf(u'}', 1);
        if (close < 0)
            throw Error(u"Invalid sendkeys command; opening { without closing } at position "_s + position());
        const QString content = rest.left(close).toString();
        const qsizetype blank = content.indexOf(u' ', 1);
        int times = 1;
        if (blank > 0) {
            const QString count = content.mid(blank + 1);
            bool isNumber = false;
            times = count.toInt(&isNumber);
            if (!isNumber || times < 0)
                throw Error(u"Invalid sendkeys command; key repetitions '"_s + count +
                            u"' is invalid near position "_s + position());
        }
        add(blank > 0 ? content.left(blank) : content, times);
        m_at += close + 1;
    }

    void add(const QString& name, int times)
    {
        const int key = KeyCode(name);
        Qt::KeyboardModifiers held = std::exchange(m_next, Qt::NoModifier);
        for (const Qt::KeyboardModifiers group : m_groups)
            held |= group;
        const bool character = name.size() == 1;
        if (character && name.at(0).isUpper())
            held |= Qt::ShiftModifier;
        m_strokes.insert(m_strokes.end(), size_t(times), {key, character ? name : textOfKey(key), held});
    }

    QString position() const { return QString::number(m_at + 1); }

    const QString& m_keys;
    qsizetype m_at = 0;
    Qt::KeyboardModifiers m_next;
    std::vector<Qt::KeyboardModifiers> m_groups;
    std::vector<Stroke> m_strokes;
};

void cSendKeys::SendKeys(const QString& keys, bool wait)
{
    const std::vector<Stroke> strokes = Reader(keys).read();
    if (wait)
        play(strokes);
    else
        QMetaObject::invokeMethod(
            qApp, [strokes] { cSendKeys().play(strokes); }, Qt::QueuedConnection);
}

void cSendKeys::KeyPress(int key)
{
    KeyDown(key);
    KeyUp(key);
}

void cSendKeys::KeyDown(int key)
{
    m_held |= modifierOfKey(key);
    send(true, key, textOfKey(key));
}

void cSendKeys::KeyUp(int key)
{
    m_held &= ~Qt::KeyboardModifiers(modifierOfKey(key));
    send(false, key, textOfKey(key));
}

int cSendKeys::KeyCode(const QString& name)
{
    if (name.size() == 1)
        return name.at(0).toUpper().unicode();
    const int key = namedKeys().value(name.toUpper(), 0);
    if (key == 0)
        throw Error(u"Key "_s + name + u" could not be interpreted."_s);
    return key;
}

void cSendKeys::play(const std::vector<Stroke>& strokes)
{
    constexpr int modifierKeys[] = {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt};
    for (const Stroke& stroke : strokes) {
        for (const int key : modifierKeys)
            if (stroke.held & modifierOfKey(key))
                KeyDown(key);
        send(true, stroke.key, stroke.text);
        send(false, stroke.key, stroke.text);
        for (const int key : modifierKeys)
            if (stroke.held & modifierOfKey(key))
                KeyUp(key);
    }
}

void cSendKeys::send(bool down, int key, const QString& text)
{
    const bool plain = !(m_held & (Qt::ControlModifier | Qt::AltModifier));
    if (key == Qt::Key_Tab && plain) {
        if (down)
            forms::sendTab(m_held & Qt::ShiftModifier);
        return;
    }
    if (QWidget* focused = QApplication::focusWidget()) {
        QKeyEvent event(down ? QEvent::KeyPress : QEvent::KeyRelease, key, m_held,
                        m_held & Qt::ShiftModifier ? text.toUpper() : text);
        QCoreApplication::sendEvent(focused, &event);
    }
}
