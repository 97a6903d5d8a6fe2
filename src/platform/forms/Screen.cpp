#include "platform/forms/Screen.h"

#include "platform/forms/SpokenName.h"

#include "platform/forms/ComboBox.h"
#include "platform/forms/KeyPreview.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Metrics.h"
#include "platform/values/Errors.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

/// The part of a small display that a screen may take; the rest is its frame's.
constexpr double largestShare = 0.97;
/// What is kept in sight around a control that has the focus, in pixels.
constexpr int around = 16;

/// The screens that stand on each other, the one in front last.
std::vector<Screen*>& chain()
{
    static std::vector<Screen*> screens;
    return screens;
}

QString& band()
{
    static QString text;
    return text;
}

/// Whether a control's designed size is that of its text: a field, a button, a panel of a fixed width.
bool holdsText(const QWidget& control)
{
    if (qobject_cast<const QFrame*>(&control) && !qobject_cast<const QLabel*>(&control) &&
        control.minimumWidth() == control.maximumWidth())
        return true;
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
           qobject_cast<const QPushButton*>(&control) || qobject_cast<const QPlainTextEdit*>(&control) ||
           qobject_cast<const QTextEdit*>(&control);
}

void closePopups()
{
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        if (QApplication::activePopupWidget() == popup)
            return;
    }
}

} // namespace

void showError(QWidget* parent, const QString& text) { criticalMessage(parent, text); }

bool guarded(QWidget* parent, const std::function<void()>& procedure)
{
    const QPointer<QWidget> over = parent;
    QString text;
    try {
        procedure();
        return true;
    } catch (const OperatorError& error) {
        text = error.text();
    } catch (const std::exception& error) {
        text = QString::fromLocal8Bit(error.what());
    } catch (...) {
        text = u"Unknown error"_s;
    }
    QWidget* front = Screen::front();
    showError(over && over->isVisible() ? over.data() : front, text);
    return false;
}

void sendTab(bool backwards)
{
    closePopups();
    QWidget* focused = QApplication::focusWidget();
    auto* screen = focused ? qobject_cast<Screen*>(focused->window()) : Screen::front();
    if (screen)
        screen->focusNextPrevChild(!backwards);
}

Screen::Screen(QWidget* parent)
    : QDialog(parent)
{
    KeyPreview::install();
}

Screen::~Screen()
{
    leaveChain();
    if (m_loop)
        m_loop->quit();
}

void Screen::showModal()
{
    const QPointer<Screen> self = this;
    load();
    if (!self || !m_loaded)
        return;
    setWindowModality(Qt::ApplicationModal);
    present();
    if (!self || !m_loaded)
        return;
    QEventLoop loop;
    m_loop = &loop;
    loop.exec(QEventLoop::DialogExec);
    if (self && m_loaded) // the application is being quit
        unload();
}

void Screen::showModeless()
{
    const QPointer<Screen> self = this;
    load();
    if (self && m_loaded)
        present();
}

void Screen::load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    m_focused = nullptr;
    for (QPushButton* button : findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
    for (QLabel* label : findChildren<QLabel*>()) // what an operator has typed is never markup
        label->setTextFormat(Qt::PlainText);
    fitText();
    try {
        Form_Load();
    } catch (...) {
        m_loaded = false;
        throw;
    }
}

/// Shows the loaded screen on top of the chain.
void Screen::present()
{
    closePopups();
    const Screen* below = front();
    chain().push_back(this);
    if (below && below->windowHandle()) {
        winId();
        windowHandle()->setTransientParent(below->windowHandle());
    }
    if (!focusWidget())
        focusNextPrevChild(true);
    showBand();
    nameControls(*this);
    if (!testAttribute(Qt::WA_Resized))
        adjustSize();
    fitDisplay();
    show();
    activateWindow();
    const QPointer<Screen> self = this;
    activate();
    if (!self || !m_loaded)
        return;
    fitContent();
}

/// What has been filled in since may need more room than the display has.
void Screen::fitContent()
{
    const QSize room = screen()->availableSize();
    if (minimumSizeHint().boundedTo(room) != minimumSizeHint())
        fitDisplay();
}

bool Screen::event(QEvent* event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && m_loaded && isVisible())
        fitContent();
    return handled;
}

/// The band takes the place of a menu bar: above the content, from edge to edge.
void Screen::showBand()
{
    if (!layout() || (band().isEmpty() && !m_band))
        return;
    if (!m_band) {
        m_band = new QLabel(this);
        m_band->setObjectName(u"lblBand"_s);
        m_band->setTextFormat(Qt::PlainText);
        m_band->setAlignment(Qt::AlignCenter);
        m_band->setWordWrap(true);
        layout()->setMenuBar(m_band);
    }
    m_band->setText(band());
    m_band->setVisible(!band().isEmpty());
}

void Screen::refitAll()
{
    for (Screen* screen : chain()) {
        screen->fitText();
        screen->fitDisplay();
    }
}

/// The sizes that screen and controls were designed with grow with the text in them.
void Screen::fitText()
{
    const auto grown = [](int length) {
        return length == QWIDGETSIZE_MAX ? length : int(length * textScale);
    };
    if (m_textScale != textScale && testAttribute(Qt::WA_Resized) && !isMaximized())
        resize(size() * textScale / m_textScale);
    if (m_textScale == textScale)
        return;
    m_textScale = textScale;
    constexpr auto designed = "designedSizes";
    for (QWidget* control : findChildren<QWidget*>()) {
        if (!holdsText(*control))
            continue;
        if (!control->property(designed).isValid())
            control->setProperty(designed, QRect(QPoint(control->minimumWidth(), 0), control->maximumSize()));
        const QRect sizes = control->property(designed).toRect();
        if (sizes.width() != QWIDGETSIZE_MAX)
            control->setMinimumWidth(grown(sizes.x()));
        control->setMaximumSize(grown(sizes.width()), grown(sizes.height()));
    }
}

/// Makes the screen no larger than the display; content that needs more room moves into a scrolling area.
void Screen::fitDisplay()
{
    const QSize room = m_usesScreenHeight ? shareOfDisplay() : screen()->availableSize() * largestShare;
    const QSize wanted = m_usesScreenHeight ? room : size().expandedTo(minimumSizeHint()).boundedTo(room);
    const bool fits = minimumSizeHint().boundedTo(room) == minimumSizeHint();
    if (!fits && !m_scroller && layout()) {
        m_scroller = new QScrollArea(this);
        m_scroller->setFrameShape(QFrame::NoFrame);
        m_scroller->setFocusPolicy(Qt::NoFocus);
        m_scroller->setWidgetResizable(true);
        QWidget* focused = focusWidget(); // a control that moves loses the focus
        auto* content = new QWidget;
        layout()->setMenuBar(nullptr);
        m_scroller->setWidget(content);
        content->setLayout(layout()); // and the controls with it
        content->setAutoFillBackground(false);
        m_scroller->viewport()->setAutoFillBackground(false);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->addWidget(m_scroller);
        column->setMenuBar(m_band);
        column->activate(); // the content's least size is the screen's no longer
        if (focused)
            focused->setFocus();
    }
    if (!isVisible() || !isMaximized())
        resize(wanted);
}

/// The room inside the frame of a screen that takes a share of the display. Its frame is not there yet: one
/// like that of the screen below is counted on.
QSize Screen::shareOfDisplay() const
{
    const QSize display = screen()->availableSize();
    const QWindow* below = windowHandle() ? windowHandle()->transientParent() : nullptr;
    const QMargins frame = below ? below->frameMargins() : QMargins();
    return QSize(display.width(), int(display.height() * largestShare)).shrunkBy(frame);
}

void Screen::activate()
{
    guarded(this, [this] { Form_Activate(); });
}

void Screen::unload()
{
    if (!m_loaded)
        return;
    m_loaded = false;
    const QPointer<Screen> self = this;
    guarded(this, [this] { Form_Unload(); });
    if (!self)
        return;
    const bool wasFront = front() == this;
    leaveChain();
    closePopups();
    move(pos()); // where it stands is where it comes again
    hide();
    if (m_loop)
        m_loop->quit();
    if (wasFront && front()) {
        front()->activateWindow();
        if (!m_notice)
            front()->activate();
    }
}

void Screen::done(int) { unload(); }

void Screen::Form_KeyPress(int& key)
{
    if (key != key::Escape)
        return;
    key = 0;
    unload();
}

void Screen::leaveChain() { std::erase(chain(), this); }

void Screen::setBand(const QString& text) { band() = text; }

Screen* Screen::front() { return chain().empty() ? nullptr : chain().back(); }

void Screen::onKeyPress(QWidget* control, std::function<void(int& key)> procedure)
{
    eventsOf(control).keyPress.push_back(std::move(procedure));
}

void Screen::onKeyDown(QWidget* control, std::function<void(int& key)> procedure)
{
    eventsOf(control).keyDown.push_back(std::move(procedure));
}

void Screen::onGotFocus(QWidget* control, std::function<void()> procedure)
{
    eventsOf(control).gotFocus.push_back(std::move(procedure));
}

void Screen::onLostFocus(QWidget* control, std::function<void()> procedure)
{
    eventsOf(control).lostFocus.push_back(std::move(procedure));
}

Screen::ControlEvents& Screen::eventsOf(QWidget* control)
{
    std::erase_if(m_events, [](const ControlEvents& events) { return !events.control; });
    for (ControlEvents& events : m_events)
        if (events.control == control)
            return events;
    m_events.push_back({});
    m_events.back().control = control;
    return m_events.back();
}

template <typename Procedure>
std::vector<Procedure> Screen::proceduresFor(QWidget* target,
                                             std::vector<Procedure> ControlEvents::*kind) const
{
    // A copy: the procedures may add others, or end the screen.
    std::vector<Procedure> found;
    for (const ControlEvents& events : m_events)
        if (events.control && (events.control == target || events.control->isAncestorOf(target)))
            found.insert(found.end(), (events.*kind).begin(), (events.*kind).end());
    return found;
}

bool Screen::previewKeyDown(QWidget* target, int& key, Qt::KeyboardModifiers modifiers)
{
    return swallowed(
        key, [&] { Form_KeyDown(key, modifiers); }, proceduresFor(target, &ControlEvents::keyDown));
}

bool Screen::previewKeyPress(QWidget* target, int& key)
{
    return swallowed(
        key, [&] { Form_KeyPress(key); }, proceduresFor(target, &ControlEvents::keyPress));
}

/// Gives a key to the screen's procedure, then to those of the control. An error, or the end of the screen,
/// swallows it too.
bool Screen::swallowed(int& key, const std::function<void()>& screens,
                       const std::vector<std::function<void(int&)>>& controls)
{
    const QPointer<Screen> self = this;
    const auto goesOn = [&](const std::function<void()>& procedure) {
        return guarded(this, procedure) && self && m_loaded && key != 0;
    };
    if (!goesOn(screens))
        return true;
    for (const auto& procedure : controls)
        if (!goesOn([&] { procedure(key); }))
            return true;
    return false;
}

void Screen::focusArrived(QWidget* target)
{
    if (m_scroller) {
        const QRect control(target->mapTo(m_scroller->widget(), QPoint()), target->size());
        m_scroller->ensureVisible(control.center().x(), control.center().y(), control.width() / 2 + around,
                                  control.height() / 2 + around);
    }
    if (m_focused == target)
        return;
    const QPointer<Screen> self = this;
    const QPointer<QWidget> left = std::exchange(m_focused, target);
    if (left)
        for (const auto& procedure : proceduresFor(left, &ControlEvents::lostFocus))
            if (guarded(this, procedure); !self)
                return;
    if (m_focused != target) // a procedure has moved the focus on
        return;
    for (const auto& procedure : proceduresFor(target, &ControlEvents::gotFocus))
        if (guarded(this, procedure); !self)
            return;
}

void Screen::closeEvent(QCloseEvent* event)
{
    unload();
    event->accept();
}

/// QDialog's own Enter and Esc are off: what a key means is the screen's to say.
void Screen::keyPressEvent(QKeyEvent* event) { event->ignore(); }

/// A fine line around the screen: where no window manager frames it, it still stands off from the one below.
void Screen::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    if (isMaximized())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// Stands over the middle of the screen below when it first comes; after that, where it was left.
void Screen::showEvent(QShowEvent* event)
{
    const bool stoodBefore = testAttribute(Qt::WA_Moved);
    QDialog::showEvent(event);
    if (stoodBefore)
        return;
    const auto& screens = chain();
    const auto self = std::find(screens.begin(), screens.end(), this);
    if (!event->spontaneous() && self != screens.begin() && self != screens.end())
        adjustPosition(*std::prev(self));
}

} // namespace forms
