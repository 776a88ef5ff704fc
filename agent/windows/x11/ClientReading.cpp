#include "agent/windows/x11/ClientReading.h"

#include <algorithm>
#include <utility>

namespace {

// Of four bytes each. One more than is taken of what has a fixed length, so that too much shows.
constexpr quint32 oneNumber = 1, fourNumbers = 5, mostTypes = 16, mostStates = 64, classUnits = 128;
// A title's longest characters have four bytes.
constexpr quint32 titleUnits = longestTitle;

template <size_t... Places>
std::array<ReceivedProperty, sizeof...(Places)> received(xcb_connection_t *server,
    const std::array<xcb_get_property_cookie_t, sizeof...(Places)> &asked, std::index_sequence<Places...>)
{
    return {ReceivedProperty(server, asked[Places])...};
}

} // namespace

std::array<ClientReading::Request, ClientReading::PropertyCount> ClientReading::requests(const WindowAtoms &atoms)
{
    std::array<Request, PropertyCount> all{};
    all[Type] = {atoms.windowType, mostTypes};
    all[State] = {atoms.windowState, mostStates};
    all[Desktop] = {atoms.windowDesktop, oneNumber};
    all[Frame] = {atoms.frameExtents, fourNumbers};
    all[Shadow] = {atoms.shadowExtents, fourNumbers};
    all[ProcessID] = {atoms.windowPID, oneNumber};
    all[Class] = {XCB_ATOM_WM_CLASS, classUnits};
    all[Name] = {atoms.windowName, titleUnits};
    all[OldName] = {XCB_ATOM_WM_NAME, titleUnits};
    all[Transient] = {XCB_ATOM_WM_TRANSIENT_FOR, oneNumber};
    return all;
}

ClientReading::ClientReading(xcb_connection_t *server, const WindowAtoms &atoms, xcb_window_t root, xcb_window_t window)
    : server_(server), window_(window), geometry_(xcb_get_geometry(server, window)),
      position_(xcb_translate_coordinates(server, window, root, 0, 0))
{
    const auto all = requests(atoms);
    std::transform(all.cbegin(), all.cend(), properties_.begin(),
        [&](const Request &request) { return askProperty(server, window, request.property, request.units); });
}

std::optional<WindowFacts> ClientReading::take(const WindowAtoms &atoms)
{
    const auto geometry = fromServer(xcb_get_geometry_reply(server_, geometry_, nullptr));
    const auto position = fromServer(xcb_translate_coordinates_reply(server_, position_, nullptr));
    const auto properties = received(server_, properties_, std::make_index_sequence<PropertyCount>());
    const bool isThere = std::all_of(
        properties.cbegin(), properties.cend(), [](const ReceivedProperty &one) { return one.isAnswered(); });
    if (!geometry || !position || !isThere)
        return std::nullopt;
    const auto bytes = [&properties](Property property) { return properties[property].bytes(); };
    WindowFacts facts;
    facts.windowID = window_;
    facts.content = QRect(position->dst_x, position->dst_y, geometry->width, geometry->height);
    facts.frame = marginsOf(bytes(Frame));
    facts.shadow = marginsOf(bytes(Shadow));
    facts.types = numbersOf(bytes(Type), XCB_ATOM_ATOM).value_or(QList<quint32>());
    facts.states = numbersOf(bytes(State), XCB_ATOM_ATOM).value_or(QList<quint32>());
    facts.desktop = numberOf(bytes(Desktop), XCB_ATOM_CARDINAL);
    facts.isTransient = numberOf(bytes(Transient), XCB_ATOM_WINDOW).value_or(XCB_WINDOW_NONE) != XCB_WINDOW_NONE;
    facts.processID = numberOf(bytes(ProcessID), XCB_ATOM_CARDINAL).value_or(0);
    facts.program = programClassOf(bytes(Class));
    const TextTypes types{atoms.utf8Text, atoms.compoundText};
    const QString title = titleOf(bytes(Name), types);
    facts.title = title.isEmpty() ? titleOf(bytes(OldName), types) : title;
    return facts;
}
