#pragma once

class NSBundle;
class QWidget;

// What the pane's pages say of the copy that is installed. Each finds its controls in the pane's view by their names.

/// Shows the product's icon on top of the page about it.
void showIcon(QWidget *view, const NSBundle *bundle);

/// Where a copy cannot update itself since nothing tells it genuine updates by, the page says which version it is and
/// where new ones come from, and offers no checks.
void showWhereUpdatesComeFrom(QWidget *view, const NSBundle *bundle);
