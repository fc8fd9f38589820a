#include "pdf/DotMask.h"

#include <algorithm>

#include "pdf/PngRows.h"

namespace {

constexpr int kRowsPerBand = 64;

// Copies bits of a row, from bit `from` on; what is left of the last byte stays empty.
void copyBits(const std::vector<unsigned char>& source, int from, int count,
              std::vector<unsigned char>& row)
{
    const auto byteAt = [&](std::size_t i) { return i < source.size() ? source[i] : 0U; };
    const std::size_t first = static_cast<std::size_t>(from) / 8;
    const int shift = from % 8;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const unsigned two = byteAt(first + i) << 8U | byteAt(first + i + 1);
        row[i] = static_cast<unsigned char>(two >> (8 - shift));
    }
    if (count % 8 != 0) {
        row.back() = static_cast<unsigned char>(row.back() & (0xff00 >> count % 8));
    }
}

void sendDots(const DotMask& mask, const PdfBytes& bytes)
{
    const std::unique_ptr<DotLayer> dots = mask.makeDots();
    DotLayer::Printer printer(*dots);
    const auto bytesPerRow = static_cast<std::size_t>((mask.page.width + 7) / 8);
    std::vector<unsigned char> row(static_cast<std::size_t>((mask.part.width() + 7) / 8));
    PngRows rows(1, row.size(), bytes);
    for (int y = 0; y < mask.part.height(); y += kRowsPerBand) {
        const int count = std::min(kRowsPerBand, mask.part.height() - y);
        std::vector<unsigned char> band(bytesPerRow * static_cast<std::size_t>(count));
        printer.printBits(band.data(), static_cast<int>(bytesPerRow), mask.part.top() + y, count);
        for (int i = 0; i < count; ++i) {
            const auto start = band.begin() + static_cast<std::ptrdiff_t>(bytesPerRow) * i;
            const std::vector<unsigned char> whole(
                start, start + static_cast<std::ptrdiff_t>(bytesPerRow));
            copyBits(whole, mask.part.left(), mask.part.width(), row);
            rows.send(row.data());
        }
        if (mask.progress) {
            mask.progress(y + count);
        }
    }
}

}  // namespace

PdfImage DotMask::image() const
{
    PdfImage image;
    image.width = part.width();
    image.height = part.height();
    image.decode = {1, 0};
    image.produce = [mask = *this](const PdfBytes& bytes) { sendDots(mask, bytes); };
    return image;
}
