#include "tests/manual/Pictures.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <sstream>

#include "tests/helpers/TemporaryFolder.h"
#include "tests/manual/ManualPages.h"

std::vector<Picture> picturesOfManual()
{
    std::istringstream lines(readFile(PLINKETT_SOURCE_DIR "/docs/manual/pictures.txt"));
    std::vector<Picture> pictures;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        Picture picture;
        if (line[0] == '#' || !(words >> picture.file)) {
            continue;
        }
        for (std::string form; words >> form;) {
            picture.forms.push_back(form);
        }
        pictures.push_back(picture);
    }
    return pictures;
}

namespace {

// What can be seen of a form: all of a .ui file, the texts of a source.
QByteArray visiblePartOf(const std::string& form)
{
    const QByteArray bytes = QByteArray::fromStdString(readFile(PLINKETT_SOURCE_DIR "/" + form));
    if (form.find(".cpp") == std::string::npos) {
        return bytes;
    }
    static const QRegularExpression text("\\btr\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)");
    QByteArray texts;
    for (auto it = text.globalMatch(QString::fromUtf8(bytes)); it.hasNext();) {
        texts += it.next().captured(1).simplified().toUtf8() + '\n';
    }
    return texts;
}

}  // namespace

std::string stateOfForms(const Picture& picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const std::string& form : picture.forms) {
        hash.addData(visiblePartOf(form));
    }
    return hash.result().toHex().left(16).toStdString();
}

std::string takenFile(const std::string& language)
{
    return manualFolder(language) + "/images/taken.txt";
}
