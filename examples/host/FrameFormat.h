#pragma once

#include <colour/SampleRange.h>
#include <colour/YCbCrRows.h>

#include <QList>
#include <QString>

namespace Norvane { namespace Host {

/// A layout of the row converters as this program uses it.
struct FrameLayout {
    Colour::RowLayout rows;
    Colour::SampleRange range;
    /// A matrix that gives right colours where nothing else is known; \a height is the picture's.
    Colour::YCbCrMatrix (*usualMatrix)(int height);

    QString name() const;
    /// Those without can only be written.
    bool hasDecoder() const;
    bool hasAlpha() const;
    /// What the unpacked 1.0 of luma and chroma stands for.
    float lumaCodes() const;
    float chromaCodes() const;
};

/// All layouts that can be written; all but the last one can be read as well.
const QList<FrameLayout>& frameLayouts();

/// What has to be known of a file that holds the samples of a frame and nothing else.
struct FrameFormat {
    /// Of width and height. QImage counts bytes in an int.
    static const int kLongestSide = 32767;

    const FrameLayout* layout = nullptr;
    int width = 0;
    int height = 0;
    Colour::YCbCrMatrix matrix = Colour::kRec709;

    /// Reads "v210:1920x1080" or "v210:1920x1080:Rec 601", in any case. False, with a sentence in \a problem,
    /// if that fails.
    static bool parse(const QString& text, FrameFormat* format, QString* problem);
    /// As parse() reads it, with the matrix.
    QString toString() const;

    /// The memory that a row takes.
    qint64 rowBytes() const;
    /// The same with the padding that is usual in files: to 128 bytes in V210, none elsewhere.
    qint64 paddedRowBytes() const;
    /// From row to row in a file of \a fileSize bytes: one of the two above. 0 if neither makes such a file.
    qint64 rowDistance(qint64 fileSize) const;
};

/// A frame's place in the lists of pictures: its format and its file, in one text. Everything that takes the
/// path of a picture takes that as well.
struct FrameAddress {
    /// For FrameFormat::parse(). May be wrong.
    QString format;
    QString path;

    /// Null strings if \a text is the path of a common picture.
    static FrameAddress fromString(const QString& text);
    QString toString() const;
};

}} // namespace Norvane::Host
