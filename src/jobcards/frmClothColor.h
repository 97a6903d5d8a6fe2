#pragma once

#include "platform/forms/Screen.h"

#include <memory>
#include <optional>
#include <vector>

class ColorBox;

namespace Ui {
class frmClothColor;
}

/// Asks for the colour of a cloth: one of the swatches, or any other from the system's colour dialog. The
/// arrows walk among the swatches; Enter, Space or a click takes one.
class frmClothColor : public forms::Screen
{
    Q_OBJECT
public:
    frmClothColor();
    ~frmClothColor() override;

    /// The colour as job lines keep it; nothing when the operator left without one. It begins on the swatch
    /// of `current`, or on the first.
    std::optional<qint32> choose(qint32 current);

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void addSwatch(const QString& name, const QColor& color);
    void take(qint32 number);
    void askOther();

    std::unique_ptr<Ui::frmClothColor> ui;
    std::vector<ColorBox*> m_swatches;
    qint32 m_current = 0;
    std::optional<qint32> m_chosen;
};
