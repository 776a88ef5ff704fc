#pragma once

#include <QString>
#include <functional>

class QWidget;

// The page of a pane that was seen last. A pane's pages are those of its first tab view; each has an `identifier`.

/// Makes a page the one that a view shows first. Its owner hears nothing of that: to it the view was made so. Called
/// before the view is shown; a page that is not there, or an empty identifier, changes nothing.
void showFirst(const QWidget *view, const QString &page);

/// Calls `turned` with the page's identifier each time that another page comes up, as long as the view lives.
void followPages(const QWidget *view, std::function<void(const QString &page)> turned);
