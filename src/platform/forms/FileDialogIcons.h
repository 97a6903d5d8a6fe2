#pragma once

#include <QProxyStyle>

class QFileDialog;

namespace forms {

/// Lets a file dialog be the program's own, not the desktop's, with the program's icons for folders, files
/// and drives.
void useOwnIcons(QFileDialog& dialog);

/// The style of the program: Fusion, with line icons of the resources on the buttons of a file dialog.
class OwnStyle : public QProxyStyle
{
public:
    OwnStyle();
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace forms
