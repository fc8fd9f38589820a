#include "pdf/TextOutline.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>

#include <clocale>

#include "base/PlatformMachine.h"

namespace {

constexpr int kDrawnHeight = 512;  // pixels, fine enough to be made any size

// An application object would switch the process to the locale of the environment.
class LocaleStays
{
public:
    LocaleStays() { qputenv(kVariable, "C"); }
    ~LocaleStays()
    {
        setlocale(LC_ALL, locale.c_str());
        if (before.isNull()) {
            qunsetenv(kVariable);
        } else {
            qputenv(kVariable, before);
        }
    }
    LocaleStays(const LocaleStays&) = delete;
    LocaleStays& operator=(const LocaleStays&) = delete;

private:
    static constexpr char kVariable[] = "LC_ALL";
    const std::string locale = setlocale(LC_ALL, nullptr);
    const QByteArray before = qgetenv(kVariable);
};

// Qt has fonts only where there is an application object. The command line gets one with its first
// such text, for as long as the process lives.
void letThereBeFonts()
{
    if (QCoreApplication::instance() != nullptr) {
        return;
    }
    static int count = 3;
    static std::string words[] = {"plinkett-cli", "-platform", Platform::screenlessPlugin()};
    static char* pointers[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    const LocaleStays locale;
    static auto* const application = new QGuiApplication(count, pointers);
    Q_UNUSED(application)
}

QFont fontOf(bool bold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif, QFont::PreferOutline);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(kDrawnHeight);
    font.setBold(bold);
    return font;
}

}  // namespace

TextOutline::TextOutline(const std::string& utf8, bool bold)
{
    letThereBeFonts();
    const QFont font = fontOf(bold);
    const QString text = QString::fromStdString(utf8);
    QPainterPath drawn;
    drawn.addText(0, 0, font, text);
    constexpr double kToHeight = 1.0 / kDrawnHeight;
    shapes = QTransform::fromScale(kToHeight, kToHeight).map(drawn);
    shapes.setFillRule(Qt::WindingFill);
    advance = QFontMetricsF(font).horizontalAdvance(text) * kToHeight;
}
