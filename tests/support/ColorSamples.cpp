#include "ColorSamples.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace {

QList<float> componentsIn(const QString &text)
{
    static const QRegularExpression component("[a-z]=([^ \\]]+)");
    QList<float> components;
    for (auto matches = component.globalMatch(text); matches.hasNext();)
        components += matches.next().captured(1).toFloat();
    return components;
}

ColorSample sampleIn(const QByteArray &line)
{
    const QByteArrayList fields = line.trimmed().split('\t');
    const QString content = QString::fromUtf8(fields.at(3));
    ColorSample sample{fields.at(0), QByteArray::fromBase64(fields.at(1)), NSColorSpace(fields.at(2).left(1).toInt()),
        fields.at(2).contains(", BE") ? ByteOrder::BigEndian : ByteOrder::LittleEndian, {}, {}, componentsIn(content)};
    if (sample.colorSpace == NSColorSpace::Catalog) {
        sample.catalog = content.section('/', 0, 0);
        sample.name = content.section('/', 1).section(' ', 0, 0);
    }
    return sample;
}

QList<ColorSample> readSamples()
{
    QFile file(qEnvironmentVariable("LUMAROO_SOURCE") + "/tests/data/color_samples.tsv");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QList<ColorSample> samples;
    for (file.readLine(); !file.atEnd();)
        samples += sampleIn(file.readLine());
    return samples;
}

} // namespace

const QList<ColorSample> &colorSamples()
{
    static const QList<ColorSample> samples = readSamples();
    return samples;
}

bool isColorOf(const ColorSample &sample, const NSColorRef &color)
{
    if (!color || color->colorSpace() != sample.colorSpace || color->catalogName() != sample.catalog
        || color->colorName() != sample.name)
        return false;
    const NSColorRef numbers = sample.colorSpace == NSColorSpace::Catalog ? color->fallback() : color;
    const auto begin = numbers->components().begin();
    return QList<float>(begin, begin + numbers->componentCount()) == sample.components;
}

QByteArray colorSample(const QByteArray &id)
{
    const auto hasId = [&id](const ColorSample &sample) { return sample.id == id; };
    const auto found = std::find_if(colorSamples().cbegin(), colorSamples().cend(), hasId);
    return found == colorSamples().cend() ? QByteArray() : found->archive;
}

QByteArray systemColorArchive()
{
    return QByteArray::fromHex(
        "040b73747265616d747970656481e803840140848484074e53436f6c6f72008484084e534f626a65637400858401630684034040408484"
        "84084e53537472696e67019484012b0653797374656d868496981b73656c6563746564546578744261636b67726f756e64436f6c6f7286"
        "849395038402666683abaa2a3f018686");
}
