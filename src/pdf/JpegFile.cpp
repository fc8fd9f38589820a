#include "pdf/JpegFile.h"

namespace {

constexpr int kMarkerStart = 0xff;
constexpr int kEndOfImage = 0xd9;
constexpr int kStartOfScan = 0xda;
constexpr int kAdobe = 0xee;

// Goes through the segments of a JPEG file.
class Segments
{
public:
    explicit Segments(const QByteArray& bytes) : file(bytes) {}

    // The next marker; -1 at the end of the bytes. What is not in a segment, the coded picture, is
    // passed over.
    int next()
    {
        for (; at + 1 < file.size(); ++at) {
            at = file.indexOf(static_cast<char>(kMarkerStart), at);
            if (at < 0 || at + 1 >= file.size()) {
                break;
            }
            const int marker = byte(1);
            if (marker != 0 && marker != kMarkerStart) {
                at += 2;
                return marker;
            }
        }
        at = file.size();
        return -1;
    }

    // Of the segment of the marker, its length included.
    int length() const { return at + 1 < file.size() ? byte(0) << 8 | byte(1) : 0; }
    // A byte of the segment; 0 behind the end of the file.
    int byte(int offset) const
    {
        return at + offset < file.size() ? static_cast<unsigned char>(file[at + offset]) : 0;
    }
    bool startsWith(const char* text) const { return file.mid(at + 2, 8).startsWith(text); }
    void skip() { at += length(); }

private:
    const QByteArray& file;
    int at = 0;
};

// Markers that stand alone: of the picture's start, and those between parts of a scan.
bool hasNoSegment(int marker)
{
    return (marker >= 0xd0 && marker <= 0xd8) || marker == 0x01;
}

bool isFrame(int marker)
{
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

// Baseline, extended and progressive, with Huffman codes and eight bits.
bool isKnownToPdf(int frame, const Segments& segment)
{
    const int components = segment.byte(7);
    return frame <= 0xc2 && segment.byte(2) == 8 &&
           (components == 1 || components == 3 || components == 4);
}

bool areNamedRgb(const Segments& frame)
{
    return frame.byte(7) == 3 && frame.byte(8) == 'R' && frame.byte(11) == 'G' &&
           frame.byte(14) == 'B';
}

}  // namespace

std::optional<JpegFacts> readJpegFacts(const QByteArray& file)
{
    if (!file.startsWith("\xff\xd8")) {
        return std::nullopt;
    }
    JpegFacts facts;
    bool namedRgb = false;
    bool tellsItsColours = false;
    bool scanned = false;
    Segments segments(file);
    for (int marker = segments.next(); marker >= 0; marker = segments.next()) {
        if (marker == kEndOfImage) {
            facts.complete = scanned;
            break;
        }
        if (hasNoSegment(marker)) {
            continue;
        }
        if (isFrame(marker)) {
            if (!isKnownToPdf(marker, segments)) {
                return std::nullopt;
            }
            facts.components = segments.byte(7);
            namedRgb = areNamedRgb(segments);
        } else if ((marker == kAdobe && segments.startsWith("Adobe")) ||
                   (marker == 0xe0 && segments.startsWith("JFIF"))) {
            tellsItsColours = true;
        }
        scanned = scanned || marker == kStartOfScan;
        segments.skip();
    }
    if (facts.components == 0) {
        return std::nullopt;
    }
    facts.plainRgb = namedRgb && !tellsItsColours;
    return facts;
}
