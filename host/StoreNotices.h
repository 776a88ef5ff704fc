#pragma once

#include "host/NoticeBar.h"

#include <QObject>
#include <QString>

class HostState;

/// Keeps the window's bar telling what became of the settings that were to be stored: first that they could not be, for
/// as long as that lasts; else which file was moved aside, once.
class StoreNotices : public QObject
{
    Q_OBJECT

public:
    StoreNotices(NoticeBar *bar, HostState *state);

    /// Looks again at what the store tells. Called when a pane has come up, which may have been the first to ask for
    /// its settings, and when the user turns to the window: what another process did is not announced.
    void refresh();

private:
    void act();
    void dismiss();
    QString fileToTellOf() const;
    void tellOfFile();

    NoticeBar *bar_;
    HostState *state_;
    QString fileKeptAside_; ///< that the bar tells of, until it is dismissed
    bool isInTrouble_ = false;
};
