#pragma once

#include <functional>

class FieldEditor;

/// Shows an alert by `display`, which returns while the sheet is open: the field that is being edited waits under it,
/// its text selected, for another key. Without an editor, or a field in it, it only shows the alert.
void displayOverEditor(FieldEditor *editor, const std::function<void()> &display);
