#pragma once

class QTabWidget;

/// Lets Ctrl+Tab, Ctrl+Page Down and their opposites turn a tab view's pages, round and round, whichever control has
/// the focus.
void addPageTurningKeys(QTabWidget *tabView);
