#include "ui/Appearance.h"

#include "core/store/Settings.h"
#include "platform/forms/Theme.h"

void ApplyAppearance()
{
    forms::setAppearance(
        {.look = IsDarkLook() ? palette::Look::Dark : palette::Look::Light, .textSize = GetTextSize()});
}
