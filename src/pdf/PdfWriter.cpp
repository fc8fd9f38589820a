#include "pdf/PdfWriter.h"

#include <qpdf/Pl_Flate.hh>
#include <qpdf/Pl_Function.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <QByteArray>

#include <optional>

#include "base/PlatformFiles.h"
#include "oid/PrintImage.h"

namespace {

// Asks an image for its bytes while the file is written.
class ImageBytes : public QPDFObjectHandle::StreamDataProvider
{
public:
    // What fails is also kept: the library throws other errors in its place.
    ImageBytes(const PdfImage& source, std::optional<PdfFailure>& kept)
        : image(source), failure(kept)
    {}

    void provideStreamData(const QPDFObjGen&, Pipeline* next) override
    {
        if (image.coding == PdfImage::Coding::jpeg) {
            produceInto(*next);
            next->finish();
        } else {
            Pl_Flate compressor("rows", next, Pl_Flate::a_deflate);
            produceInto(compressor);
            compressor.finish();
        }
    }

private:
    void produceInto(Pipeline& pipeline)
    {
        try {
            image.produce(
                [&](const unsigned char* bytes, std::size_t size) { pipeline.write(bytes, size); });
        } catch (const PdfFailure& stopped) {
            failure = stopped;
            throw;
        }
    }

    PdfImage image;
    std::optional<PdfFailure>& failure;
};

int samplesOf(PdfImage::Colours colours)
{
    switch (colours) {
    case PdfImage::Colours::rgb:
        return 3;
    case PdfImage::Colours::cmyk:
        return 4;
    default:
        return 1;
    }
}

const char* spaceOf(PdfImage::Colours colours)
{
    switch (colours) {
    case PdfImage::Colours::rgb:
        return "/DeviceRGB";
    case PdfImage::Colours::cmyk:
        return "/DeviceCMYK";
    default:
        return "/DeviceGray";
    }
}

QPDFObjectHandle number(double value)
{
    return QPDFObjectHandle::newReal(pdfNumber(value));
}

QPDFObjectHandle box(double left, double bottom, double right, double top)
{
    return QPDFObjectHandle::newArray(
        std::vector<QPDFObjectHandle>{number(left), number(bottom), number(right), number(top)});
}

QPDFObjectHandle dictionaryOf(const PdfImage& image)
{
    const bool isMask = image.colours == PdfImage::Colours::mask;
    QPDFObjectHandle dictionary = QPDFObjectHandle::parse("<< /Type /XObject /Subtype /Image >>");
    dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(image.width));
    dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(image.height));
    dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(isMask ? 1 : 8));
    if (isMask) {
        dictionary.replaceKey("/ImageMask", QPDFObjectHandle::newBool(true));
        dictionary.replaceKey("/Interpolate", QPDFObjectHandle::newBool(false));
    } else {
        dictionary.replaceKey("/ColorSpace", QPDFObjectHandle::newName(spaceOf(image.colours)));
    }
    if (!image.decode.empty()) {
        QPDFObjectHandle decode = QPDFObjectHandle::newArray();
        for (const double value : image.decode) {
            decode.appendItem(number(value));
        }
        dictionary.replaceKey("/Decode", decode);
    }
    return dictionary;
}

QPDFObjectHandle parametersOf(const PdfImage& image)
{
    if (image.coding == PdfImage::Coding::jpeg) {
        return image.plainRgb ? QPDFObjectHandle::parse("<< /ColorTransform 0 >>")
                              : QPDFObjectHandle::newNull();
    }
    QPDFObjectHandle parameters = QPDFObjectHandle::parse("<< /Predictor 15 >>");
    const bool isMask = image.colours == PdfImage::Colours::mask;
    parameters.replaceKey("/Colors", QPDFObjectHandle::newInteger(samplesOf(image.colours)));
    parameters.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(isMask ? 1 : 8));
    parameters.replaceKey("/Columns", QPDFObjectHandle::newInteger(image.width));
    return parameters;
}

// Intended: no message of the library's own, and none of a full disk, which commit tells.
bool writeObjects(QPDF& document, FILE* file)
{
    QPDFWriter writer(document);
    writer.setOutputFile("pdf", file, false);
    writer.setObjectStreamMode(qpdf_o_disable);
    writer.setDecodeLevel(qpdf_dl_none);  // images stay as they come
    writer.setMinimumPDFVersion("1.6");
    writer.setDeterministicID(true);
    writer.write();
    return std::fflush(file) == 0;
}

}  // namespace

class PdfWriter::Objects
{
public:
    Objects()
    {
        document.emptyPDF();
        document.getRoot().replaceKey(
            "/ViewerPreferences",
            QPDFObjectHandle::parse("<< /PrintScaling /None /PickTrayByPDFSize true >>"));
        fonts = document.makeIndirectObject(
            QPDFObjectHandle::parse("<< /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica "
                                    "/Encoding /WinAnsiEncoding >> "
                                    "/F2 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold "
                                    "/Encoding /WinAnsiEncoding >> >>"));
    }

    QPDF document;
    QPDFObjectHandle fonts;
    std::vector<QPDFObjectHandle> images;
    std::optional<PdfFailure> failure;
};

PdfWriter::PdfWriter() : objects(std::make_unique<Objects>()) {}

PdfWriter::~PdfWriter() = default;

int PdfWriter::addImage(const PdfImage& image)
{
    QPDFObjectHandle stream = QPDFObjectHandle::newStream(&objects->document);
    stream.replaceDict(dictionaryOf(image));
    const char* const filter =
        image.coding == PdfImage::Coding::jpeg ? "/DCTDecode" : "/FlateDecode";
    stream.replaceStreamData(std::make_shared<ImageBytes>(image, objects->failure),
                             QPDFObjectHandle::newName(filter), parametersOf(image));
    objects->images.push_back(stream);
    return static_cast<int>(objects->images.size()) - 1;
}

void PdfWriter::addPage(const PdfPage& page)
{
    const double width = page.width * kPointsPerMillimetre;
    const double height = page.height * kPointsPerMillimetre;
    QPDFObjectHandle dictionary = QPDFObjectHandle::parse("<< /Type /Page >>");
    dictionary.replaceKey("/MediaBox", box(0, 0, width, height));
    if (page.trimWidth > 0) {
        const double left = page.trimLeft * kPointsPerMillimetre;
        const double top = height - page.trimTop * kPointsPerMillimetre;
        dictionary.replaceKey("/TrimBox", box(left, top - page.trimHeight * kPointsPerMillimetre,
                                              left + page.trimWidth * kPointsPerMillimetre, top));
    }
    QPDFObjectHandle images = QPDFObjectHandle::newDictionary();
    for (const int image : page.images) {
        images.replaceKey("/Im" + std::to_string(image),
                          objects->images[static_cast<std::size_t>(image)]);
    }
    QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/XObject", images);
    resources.replaceKey("/Font", objects->fonts);
    dictionary.replaceKey("/Resources", resources);
    dictionary.replaceKey("/Contents",
                          QPDFObjectHandle::newStream(&objects->document, page.content));
    objects->document.addPage(objects->document.makeIndirectObject(dictionary), false);
}

bool PdfWriter::write(const std::string& path)
{
    const std::string native = Platform::nativePath(path);
    Platform::FileReplacement file(path);
    if (file.file() == nullptr) {
        mi_printf("Error: Can't open file '%s'\n", native.c_str());
        return false;
    }
    try {
        if (writeObjects(objects->document, file.file()) && file.commit()) {
            return true;
        }
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {  // an image's, or the library's when the disk is full
        if (objects->failure) {
            mi_printf("%s", objects->failure->what());
            return false;
        }
    }
    mi_printf("Error: Can't write file '%s'\n", native.c_str());
    return false;
}

std::string pdfNumber(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 6);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text == "-0" ? "0" : text.toStdString();
}
