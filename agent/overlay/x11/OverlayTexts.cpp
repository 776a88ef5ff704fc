#include "agent/overlay/x11/OverlayTexts.h"

#include "agent/overlay/OverlayLayout.h"
#include "agent/overlay/OverlayLengths.h"
#include "agent/overlay/x11/WindowIcon.h"

namespace {

constexpr double stripIconSide = 32; // twice what is shown, for a sharp one

} // namespace

OverlayTexts::OverlayTexts(const MarkDisplay &display) : display_(display), strip_(display), icon_(display)
{
    for (size_t digit = 0; digit < mostDigits; ++digit)
        digits_.push_back(std::make_unique<PictureWindow>(display));
}

void OverlayTexts::show(const OverlayView &view, const OverlayColors &colors)
{
    const OverlayPictures *pictures = overlayPictures();
    if (!pictures)
        return;
    useInk({colors.fill, colors.contrast, view.monitor.scale});
    const QRect iconPlace = iconPlaceOf(view);
    const int side = std::max(iconPlace.height(), scaledLength(stripIconSide, view.monitor.scale));
    const OverlayPicture icon = windowIcon(display_, view.windowID, side);
    showStrip(*pictures, view, icon);
    showIcon(*pictures, view, icon);
    showLabels(*pictures, view);
    windowID_ = view.windowID;
    title_ = view.title;
    windowRect_ = view.windowRect;
}

/// The digits' pictures have been drawn with the ink before.
void OverlayTexts::useInk(const OverlayInk &ink)
{
    if (ink == ink_)
        return;
    ink_ = ink;
    for (const auto &digit : digits_) {
        digit->hide();
        digit->setPicture({});
    }
}

void OverlayTexts::showStrip(const OverlayPictures &pictures, const OverlayView &view, const OverlayPicture &icon)
{
    const StripPlace place = stripPlaceOf(view);
    const bool hasNothingToTell = view.title.isEmpty() && icon.isEmpty();
    strip_.setPicture(
        hasNothingToTell ? OverlayPicture() : pictures.strip(ink_, icon, view.title, place.longest, place.corners));
    strip_.show(place.rectOf(strip_.size(), view.monitor.rect).topLeft());
}

void OverlayTexts::showIcon(const OverlayPictures &pictures, const OverlayView &view, const OverlayPicture &icon)
{
    const QRect place = iconPlaceOf(view);
    icon_.setPicture(place.isEmpty() ? OverlayPicture() : pictures.icon(ink_, icon, place.height()));
    icon_.show(place.topLeft());
}

void OverlayTexts::showLabels(const OverlayPictures &pictures, const OverlayView &view)
{
    const QList<QRect> places = labelPlacesOf(view);
    std::array<bool, mostDigits> isUsed{};
    for (qsizetype number = 0; number < places.size(); ++number) {
        const int digit = view.labels.at(number).digit;
        if (digit < 1 || digit > int(mostDigits))
            continue;
        PictureWindow &window = *digits_[size_t(digit) - 1];
        if (window.size() != places.at(number).size())
            window.setPicture(pictures.digit(ink_, digit, places.at(number).height()));
        window.show(places.at(number).topLeft());
        isUsed[size_t(digit) - 1] = true;
    }
    for (size_t place = 0; place < mostDigits; ++place) {
        if (!isUsed[place])
            digits_[place]->hide();
    }
}

void OverlayTexts::hideOutdated(const OverlayView &next)
{
    if (next.windowID != windowID_ || next.windowRect != windowRect_ || next.title != title_) {
        strip_.hide();
        icon_.hide();
    }
    if (next.labels.isEmpty()) {
        for (const auto &digit : digits_)
            digit->hide();
    }
}

void OverlayTexts::hide()
{
    strip_.hide();
    icon_.hide();
    for (const auto &digit : digits_)
        digit->hide();
}
