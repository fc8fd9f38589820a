#include "oid/BackgroundReader.h"

#include <QString>

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"
#include "oid/PrintImage.h"

namespace {

// Collects what Qt's decoders warn about on this thread while it lives.
class DecoderWarnings
{
public:
    DecoderWarnings() : previous(qInstallMessageHandler(collect)), outer(current)
    {
        forward = previous;
        current = this;
    }
    ~DecoderWarnings()
    {
        current = outer;
        qInstallMessageHandler(previous);
    }
    DecoderWarnings(const DecoderWarnings&) = delete;
    DecoderWarnings& operator=(const DecoderWarnings&) = delete;

    // Other warnings, on odd headers or colour profiles, leave the pixels alone.
    bool tellOfDamage() const
    {
        return text.contains(QLatin1String("Corrupt JPEG data")) ||
               text.contains(QLatin1String("Premature end"));
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (current != nullptr) {
            current->text += message + QLatin1Char('\n');
        } else if (forward != nullptr) {
            forward(type, context, message);
        }
    }

    static thread_local DecoderWarnings* current;
    static QtMessageHandler forward;

    QtMessageHandler previous;
    DecoderWarnings* outer;
    QString text;
};

thread_local DecoderWarnings* DecoderWarnings::current = nullptr;
QtMessageHandler DecoderWarnings::forward = nullptr;

}  // namespace

bool readBackground(const std::string& path, QImage& image)
{
    const std::string native = Platform::nativePath(path);
    const DecoderWarnings warnings;
    PictureFile file(QString::fromStdString(native));
    if (!file.fitsMemory()) {
        mi_printf("Error: The image '%s' is too large for the memory\n", native.c_str());
        return false;
    }
    image = file.read();
    if (image.isNull()) {
        mi_printf("Error: Can't read the image '%s'\n", native.c_str());
        return false;
    }
    if (warnings.tellOfDamage()) {
        mi_printf("Error: The image '%s' is damaged\n", native.c_str());
        return false;
    }
    return true;
}
