#pragma once

#include "platform/forms/Screen.h"

#include <functional>

/// Runs `work` while the screen stands open, painted and active: `open` shows it modally, it is closed then.
void onScreen(forms::Screen& screen, const std::function<void()>& open, const std::function<void()>& work);

/// A key, down and up, to a control.
void pressKey(QWidget& control, int key, const QString& text = {});

/// Lays out and paints what has changed.
void paint();

/// Resident memory of this process, in MB.
double residentMegabytes();
