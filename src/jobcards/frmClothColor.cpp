#include "jobcards/frmClothColor.h"

#include "jobcards/ColorBox.h"
#include "ui/modLang.h"
#include "ui_frmClothColor.h"

#include <QColorDialog>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 8;

struct Cloth
{
    const char* name;
    QRgb color;
};

/// What comes over the counter most. Black is a very dark grey: true black has the number 0, which is never
/// taken for the colour of a cloth.
constexpr Cloth cloths[] = {
    {"White", 0xFFFFFF},      {"Ivory", 0xFFFDE7},        {"Cream", 0xF5E9C8},     {"Beige", 0xE3CFA4},
    {"Light grey", 0xCFD4D8}, {"Sky blue", 0xA9D3F0},     {"Pink", 0xF6B8C8},      {"Yellow", 0xF7DC4E},
    {"Grey", 0x8C9399},       {"Khaki", 0xB59F6B},        {"Fawn", 0xC08E5A},      {"Orange", 0xF08A24},
    {"Red", 0xD32F2F},        {"Magenta", 0xC2246E},      {"Turquoise", 0x1FA3A3}, {"Blue", 0x1E63C4},
    {"Purple", 0x6A3FA0},     {"Bottle green", 0x0F5A3C}, {"Olive", 0x6B6B2B},     {"Brown", 0x6D4326},
    {"Maroon", 0x701C28},     {"Navy blue", 0x17264F},    {"Charcoal", 0x3A3F45},  {"Black", 0x141414},
};

} // namespace

frmClothColor::frmClothColor()
    : ui(std::make_unique<Ui::frmClothColor>())
{
    ui->setupUi(this);
    for (const Cloth& cloth : cloths)
        addSwatch(QString::fromLatin1(cloth.name), QColor(cloth.color));
    setTabOrder(m_swatches.back(), ui->cmdOther);
    setTabOrder(ui->cmdOther, ui->cmdCancel);
    on(ui->cmdOther, &QPushButton::clicked, &frmClothColor::askOther);
    on(ui->cmdCancel, &QPushButton::clicked, &frmClothColor::unload);
    setNotice(true); // the keys come back to the box that asked
    SetFormLanguage(*this);
}

frmClothColor::~frmClothColor() = default;

void frmClothColor::addSwatch(const QString& name, const QColor& color)
{
    const int number = int(m_swatches.size());
    auto* swatch = new ColorBox(ui->fmSwatches);
    swatch->setObjectName(u"swatch_%1"_s.arg(number));
    swatch->setNumber(itemcolor::toNumber(color));
    swatch->setToolTip(name);
    swatch->setAccessibleName(name);
    ui->swatchLayout->addWidget(swatch, number / columns, number % columns);
    if (!m_swatches.empty())
        setTabOrder(m_swatches.back(), swatch);
    m_swatches.push_back(swatch);
    onGotFocus(swatch, [this, name] { ui->lblColor->setText(name); });
    on(swatch, &ColorBox::clicked, [this, swatch] { take(swatch->number()); });
}

std::optional<qint32> frmClothColor::choose(qint32 current)
{
    m_chosen.reset();
    m_current = current;
    const auto found = std::find_if(m_swatches.begin(), m_swatches.end(),
                                    [current](const ColorBox* box) { return box->number() == current; });
    (found == m_swatches.end() ? m_swatches.front() : *found)->setFocus();
    showModal();
    return m_chosen;
}

/// Up and Down keep the column; no arrow leaves the swatches.
void frmClothColor::Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers)
{
    const auto here = std::find(m_swatches.begin(), m_swatches.end(), focusWidget());
    const int step = key == forms::key::Left    ? -1
                     : key == forms::key::Right ? 1
                     : key == forms::key::Up    ? -columns
                     : key == forms::key::Down  ? columns
                                                : 0;
    if (step == 0 || here == m_swatches.end() || modifiers.testFlag(Qt::AltModifier))
        return;
    key = 0;
    const qsizetype to = here - m_swatches.begin() + step;
    if (to >= 0 && to < qsizetype(m_swatches.size()))
        m_swatches[size_t(to)]->setFocus(Qt::TabFocusReason);
}

void frmClothColor::take(qint32 number)
{
    m_chosen = number;
    unload();
}

/// Black is no cloth's colour here: it is ignored.
void frmClothColor::askOther()
{
    const QColor chosen = QColorDialog::getColor(itemcolor::fromNumber(m_current), this, windowTitle(),
                                                 QColorDialog::DontUseNativeDialog);
    activateWindow();
    if (chosen.isValid() && itemcolor::toNumber(chosen) >= 1)
        take(itemcolor::toNumber(chosen));
}
