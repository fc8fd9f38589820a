#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// What stops a file while it is written: the message for the author with its line end, or nothing
// when it was the author who stopped it, or when the message has been printed.
class PdfFailure : public std::runtime_error
{
public:
    explicit PdfFailure(const std::string& message = "") : std::runtime_error(message) {}
};

// Takes the bytes of an image, piece by piece.
using PdfBytes = std::function<void(const unsigned char* bytes, std::size_t size)>;

// An image of the file. Its bytes are asked for, once, when the file is written.
struct PdfImage
{
    enum class Colours {
        mask,  // one bit a pixel: where it is set, the page gets the colour of the drawing
        grey,
        rgb,
        cmyk
    };
    enum class Coding {
        jpeg,  // a whole JPEG file
        rows   // rows of samples, each behind the number of its PNG filter; they are compressed
    };

    int width = 0;  // pixels
    int height = 0;
    Colours colours = Colours::mask;
    Coding coding = Coding::rows;
    bool plainRgb = false;       // a JPEG of three colours that are not brightness and chroma
    std::vector<double> decode;  // what the smallest and the largest sample mean, for each colour
    // Throws PdfFailure when there are no bytes.
    std::function<void(const PdfBytes&)> produce;
};

// A page: its size, and what PDF's operators draw on it.
struct PdfPage
{
    double width = 0;  // mm
    double height = 0;
    // What remains when the page is cut, in mm from the upper left; nothing is cut if empty.
    double trimLeft = 0;
    double trimTop = 0;
    double trimWidth = 0;
    double trimHeight = 0;
    std::string content;
    std::vector<int> images;  // "/Im3" in the content is image 3
};

// Writes a PDF of pages with images. The file takes its place only when it is complete.
class PdfWriter
{
public:
    PdfWriter();
    ~PdfWriter();

    // The number of the image.
    int addImage(const PdfImage& image);
    void addPage(const PdfPage& page);
    // Asks for the images and writes the file. False, with a message, when an image fails or the
    // file cannot be written, and without one when an image fails without; an earlier file then
    // stays as it was.
    bool write(const std::string& path);

private:
    class Objects;
    std::unique_ptr<Objects> objects;
};

// A number as PDF writes it, with six decimals at most.
std::string pdfNumber(double value);

constexpr double kPointsPerMillimetre = 72 / 25.4;
