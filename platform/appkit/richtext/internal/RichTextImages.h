#pragma once

#include <QImage>
#include <QString>

/// The images attached to a rich text: files in its own folder. Bounded in number and in size, one by one and together.
class RichTextImages
{
public:
    /// Without a folder there are no images.
    explicit RichTextImages(const QString &folder);

    /// The image in a file of the folder; null when the name is none of a plain file in it, when it does not load, or
    /// when it is too much.
    QImage load(const QString &fileName);

private:
    QString pathOf(const QString &fileName) const;

    QString folder_;
    int imagesLeft_;
    qint64 pixelsLeft_;
};
