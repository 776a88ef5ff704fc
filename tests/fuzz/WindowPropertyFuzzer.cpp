#include "agent/windows/x11/WindowJudgement.h"

#include <QStringDecoder>
#include <cstdlib>

// Whatever stands in a window's properties: texts are whole, in one line and bounded, and what is seen of the window
// lies within the monitors. Input: a type, a format, which properties there are, then bytes for all of them.

namespace {

constexpr xcb_atom_t utf8Text = 200, compoundText = 201;

void expectGoodText(const QString &text)
{
    if (text.size() > longestTitle || !text.isValidUtf16() || text.contains(u'\n') || text.contains(u'\0'))
        std::abort();
}

WindowFacts factsFrom(const PropertyBytes &property)
{
    WindowFacts facts;
    facts.windowID = 1;
    const auto numbers = numbersOf(property, property.type).value_or(QList<quint32>());
    if (numbers.size() > property.bytes.size() / 4)
        std::abort();
    const auto number = [&numbers](int place) { return int(qint16(numbers.value(place))); };
    facts.content = QRect(number(0), number(1), quint16(number(2)), quint16(number(3)));
    facts.types = numbers;
    facts.states = numbers;
    facts.desktop = numberOf(property, property.type);
    facts.frame = marginsOf(property);
    const PropertyBytes rest{
        property.type, property.format, property.bytes.sliced(std::min<qsizetype>(4, property.bytes.size()))};
    facts.shadow = marginsOf(rest);
    facts.program = programClassOf(property);
    facts.title = titleOf(property, {utf8Text, compoundText});
    groupLeaderOf(property);
    return facts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size < 2)
        return 0;
    const xcb_atom_t types[]{
        XCB_ATOM_NONE, XCB_ATOM_CARDINAL, XCB_ATOM_WINDOW, XCB_ATOM_ATOM, XCB_ATOM_STRING, utf8Text, compoundText};
    const PropertyBytes property{types[bytes[0] % std::size(types)], quint8(8 << (bytes[1] % 3)),
        {reinterpret_cast<const char *>(bytes + 2), qsizetype(size - 2)}};
    const WindowFacts facts = factsFrom(property);
    for (const QString &text : {facts.title, facts.program.name, facts.program.instance})
        expectGoodText(text);
    if (facts.frame && (facts.frame->left() < 0 || facts.frame->bottom() > int(widestMargin)))
        std::abort();
    dotsPerInchOf(property);
    WindowSurroundings surroundings{
        {}, {false, {QStringLiteral("x")}}, 0, {{QRect(0, 0, 1000, 800)}, {QRect(1000, 100, 500, 500)}}};
    surroundings.atoms.stateShaded = 1;
    surroundings.atoms.stateHidden = 2;
    needsHolder(facts, surroundings.atoms);
    const QRect seen = describe(facts, surroundings).windowRect;
    if (!seen.isEmpty() && !QRect(0, 0, 1500, 800).contains(seen))
        std::abort();
    return 0;
}
