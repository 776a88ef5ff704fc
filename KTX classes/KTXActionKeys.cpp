#include "KTXActionKeys.h"

#include "KTXConstants.h"

const std::array<KTXActionKey, KTXActionKeyCount> &KTXActionKeys()
{
    static const std::array<KTXActionKey, KTXActionKeyCount> actionKeys{{
        {KTXUpPref, 126}, // up arrow
        {KTXRightPref, 124}, // right arrow
        {KTXDownPref, 125}, // down arrow
        {KTXLeftPref, 123}, // left arrow
        {KTXUnderPref, 44}, // slash
        {KTXOpenPrefPanePref, 43}, // comma
        {KTXScreenshotPref, 1}, // S
        {KTXScreenClosePref, 13}, // W
        {KTXPreviewPref, 49}, // space
        {KTXCancelPref, 53}, // escape
        {KTXSnapPref, 36}, // return
    }};
    return actionKeys;
}
