#include "platform/forms/Palette.h"

namespace palette {

std::span<const Tone* const> tones()
{
    static constexpr const Tone* all[] = {&ink,          &quietInk,
                                          &faint,        &headingInk,
                                          &captionInk,   &icon,
                                          &window,       &card,
                                          &shade,        &offGround,
                                          &tipGround,    &tipInk,
                                          &border,       &line,
                                          &lineSoft,     &rowLine,
                                          &thumb,        &strong,
                                          &focusGround,  &focusInk,
                                          &focusNotice,  &focusReadGround,
                                          &focusChosen,  &focusChosenInk,
                                          &accent,       &onAccent,
                                          &accentDeep,   &accentSoft,
                                          &accentPale,   &accentRing,
                                          &accentOff,    &accentLight,
                                          &danger,       &dangerSoft,
                                          &notice,       &early,
                                          &earlyLine,    &emphasis,
                                          &bannerGround, &bannerInk,
                                          &panel,        &panelInk,
                                          &panelBright,  &panelQuiet,
                                          &panelNotice,  &panelFaint,
                                          &panelHover,   &panelFocus,
                                          &panelMain,    &panelMainHover,
                                          &wallVeil,     &desk,
                                          &shadow,       &amber,
                                          &green,        &grey,
                                          &rust,         &slate,
                                          &ring};
    return all;
}

} // namespace palette
