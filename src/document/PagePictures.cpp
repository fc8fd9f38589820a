#include "document/PagePictures.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <algorithm>
#include <set>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"

using Oid::kAside;

namespace {

bool contains(const std::vector<PageId>& pages, PageId page)
{
    return std::find(pages.begin(), pages.end(), page) != pages.end();
}

// Pictures that have the same one are the same. Empty where there is no file.
std::string signOf(const std::string& path)
{
    constexpr qint64 kEnd = 4096;  // bytes, in which pictures of one size differ
    QFile file;
    if (!openInput(file, path)) {
        return {};
    }
    const qint64 size = file.size();
    file.seek(std::max<qint64>(size - kEnd, 0));
    const QByteArray hash = QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1);
    return std::to_string(size) + ' ' + hash.toHex().toStdString();
}

// Where all pictures are when nothing has been moved.
std::map<int, int> home(const std::map<int, int>& places)
{
    std::map<int, int> all;
    for (const auto& entry : places) {
        all[entry.first] = entry.first;
    }
    return all;
}

}  // namespace

bool PictureFileWork::move(const std::string& from, const std::string& to)
{
    return Platform::renameFile(from, to);
}

bool PictureFileWork::copy(const std::string& from, const std::string& to)
{
    return Platform::copyFile(from, to);
}

bool PictureFileWork::write(const std::string& path, const std::string& text)
{
    Platform::FileReplacement replacement(path);
    FILE* const file = replacement.file();
    return file != nullptr && std::fwrite(text.data(), 1, text.size(), file) == text.size() &&
           replacement.commit();
}

bool PictureFileWork::remove(const std::string& path)
{
    return Platform::removeFile(path);
}

PagePictures::PagePictures(Oid::OidProject& shown, KeptFiles& copies, PictureFileWork& fileWork)
    : project(shown), keptFiles(copies), work(fileWork), files(shown)
{}

PagePictures::~PagePictures()
{
    leave();
}

bool PagePictures::fail(const std::string& file)
{
    found = {Platform::nativePath(file), Platform::lastFileError()};
    return false;
}

void PagePictures::number(const std::vector<PageId>& pages)
{
    numbers.clear();
    order = {};
    signs.clear();
    outdated = false;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const auto page = static_cast<int>(i);
        numbers[pages[i]] = page;
        order.places[page] = page;
        signs[page] = folder.empty() ? std::string() : signOf(project.pathImageSource(page));
    }
    order.projectFile = FileSystem::getFilenameOfPath(project.projectPath);
    savedPages = static_cast<int>(pages.size());
}

void PagePictures::restart(const std::vector<PageId>& pages)
{
    leave();
    for (const auto& copy : kept) {
        keptFiles.forget({-1, copy.second});
    }
    kept.clear();
    files = Oid::PictureFiles(project);
    folder = project.projectPath.empty() ? std::string()
                                         : FileSystem::getDirectoryOfPath(project.projectPath);
    if (!folder.empty() && Platform::fileExists(files.order())) {
        begin();  // settles it
        lock.reset();
    } else {
        project.movedPictures.clear();
    }
    number(pages);
}

bool PagePictures::restart(const std::vector<PageId>& pages, const PagesMoved& moved)
{
    restart(pages);
    if (moved.pictures.size() != pages.size()) {
        return true;
    }
    numbers.clear();
    order.places.clear();
    savedPages = moved.saved;
    for (int picture = 0; picture < savedPages; ++picture) {
        order.places[picture] = picture;
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        numbers[pages[i]] = moved.pictures[i];
        order.places[moved.pictures[i]] = moved.pictures[i];
    }
    const bool done = arrange(pages);
    if (!done) {
        useAsTheyAre(pages);
    }
    return done;
}

void PagePictures::useAsTheyAre(const std::vector<PageId>& pages)
{
    project.movedPictures.clear();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        project.movedPictures[static_cast<int>(i)] = files.fileOf(order, numbers.at(pages[i]));
    }
}

// That of its place where that is free, else one that no file has.
int PagePictures::newNumber(int place, const Places& taken) const
{
    if (place >= savedPages && taken.count(place) == 0) {
        return place;
    }
    int next = taken.empty() ? savedPages : std::max(savedPages, taken.rbegin()->first + 1);
    while (Platform::fileExists(files.at(next)) || Platform::fileExists(files.aside(next))) {
        ++next;
    }
    return next;
}

bool PagePictures::arrange(const std::vector<PageId>& pages)
{
    return arrange(pages, Removed::outOfTheWay);
}

bool PagePictures::arrange(const std::vector<PageId>& pages, Removed removed)
{
    found = {};
    if (!isUpToDate()) {
        return false;
    }
    const auto count = static_cast<int>(pages.size());
    std::map<PageId, int> numbered = numbers;
    std::map<int, std::string> copies;
    Places target = order.places;
    std::map<int, int> shown;
    for (int place = 0; place < count; ++place) {
        const PageId page = pages[static_cast<std::size_t>(place)];
        if (numbered.count(page) == 0) {
            numbered[page] = newNumber(place, target);
            const auto copy = kept.find(page);
            if (copy != kept.end()) {
                copies[numbered[page]] = copy->second;
            }
        }
        target[numbered[page]] = place;
        shown[numbered[page]] = place;
    }
    for (auto& [picture, place] : target) {
        const bool mustGo = place < count || removed == Removed::aside;
        if (mustGo && shown.count(picture) == 0) {
            place = kAside;
        }
    }
    const bool still = copies.empty() && !mustMove(target);
    const bool unwritten = still && written.empty();
    if (unwritten) {
        order.places = target;
    } else if (still ? !writePlaces(target) : !bring(target, copies)) {
        return false;
    }
    numbers = std::move(numbered);
    for (const PageId page : pages) {
        forget(page);
    }
    return true;
}

bool PagePictures::mustMove(const Places& target) const
{
    if (folder.empty()) {
        return false;
    }
    return std::any_of(order.places.begin(), order.places.end(), [&](const auto& entry) {
        return target.at(entry.first) != entry.second &&
               Platform::fileExists(files.fileOf(order, entry.first));
    });
}

// By page, the files of those pictures that are not where they belong.
std::map<int, std::string> PagePictures::foundElsewhere() const
{
    std::map<std::string, std::string>
        strangers;          // by their signs, files that hold another picture
    std::vector<int> left;  // pictures that are not in their files
    for (const auto& [picture, place] : order.places) {
        const auto known = signs.find(picture);
        const std::string here = signOf(files.at(place));
        if (place != kAside && known != signs.end() && here != known->second) {
            left.push_back(picture);
            strangers[here] = files.at(place);
        }
    }
    for (auto place = static_cast<int>(order.places.size()); Platform::fileExists(files.at(place));
         ++place) {
        strangers.insert({signOf(files.at(place)), files.at(place)});
    }
    std::map<int, std::string> moved;
    std::set<std::string> taken;
    for (const int picture : left) {
        const std::string& sign = signs.at(picture);
        const auto stranger = sign.empty() ? strangers.end() : strangers.find(sign);
        if (stranger != strangers.end()) {
            moved[order.places.at(picture)] = stranger->second;
            taken.insert(stranger->second);
        }
    }
    // Where another one's picture has come, there is none of the page's own.
    for (const int picture : left) {
        const int place = order.places.at(picture);
        if (taken.count(files.at(place)) > 0) {
            moved.insert({place, files.aside(picture)});
        }
    }
    return moved;
}

bool PagePictures::followOthers()
{
    const bool isOurs = lock != nullptr || !written.empty();
    if (folder.empty() || isOurs || !isInPlace()) {
        return false;
    }
    Oid::OidProject seen;
    seen.projectPath = project.projectPath;
    seen.productId = project.productId;
    const bool isSaved = !Platform::fileExists(files.order());
    if (isSaved) {
        seen.movedPictures = foundElsewhere();
    } else {
        Oid::findMovedPictures(seen, [](const Diagnostic& /*diagnostic*/) {});
    }
    const bool nowOutdated = isSaved && !seen.movedPictures.empty();
    const bool changes = seen.movedPictures != project.movedPictures || nowOutdated != outdated;
    project.movedPictures = std::move(seen.movedPictures);
    outdated = nowOutdated;
    return changes;
}

bool PagePictures::isUpToDate()
{
    followOthers();
    if (outdated) {
        const char* const cause = QT_TRANSLATE_NOOP(
            "PagePictures",
            "Another window has moved pages of this book and saved that. Open the book again.");
        found = {Platform::nativePath(project.projectPath),
                 QCoreApplication::translate("PagePictures", cause).toStdString()};
    }
    return !outdated;
}

void PagePictures::wasReplaced(PageId page)
{
    const auto picture = numbers.find(page);
    if (picture != numbers.end() && !folder.empty()) {
        signs[picture->second] = signOf(files.at(order.places.at(picture->second)));
    }
}

// From here on pictures may be renamed: no other program does that meanwhile.
bool PagePictures::begin()
{
    if (!isInPlace()) {
        found = {Platform::nativePath(project.projectPath),
                 QCoreApplication::translate(
                     "PagePictures", "The book has another number now. Save it before that.")
                     .toStdString()};
        return false;
    }
    if (lock != nullptr) {
        return true;
    }
    auto ours =
        std::make_unique<QLockFile>(QString::fromStdString(Platform::nativePath(files.lock())));
    ours->setStaleLockTime(0);  // not by its age: the process may have been asleep for days
    const bool isFile = FileSystem::whyNoFile(files.lock()).empty();
    if (!isFile || !ours->tryLock(0)) {
        const bool denied = !isFile || ours->error() != QLockFile::LockFailedError;
        const char* const cause =
            denied ? QT_TRANSLATE_NOOP("PagePictures", "The folder cannot be written.")
                   : QT_TRANSLATE_NOOP(
                         "PagePictures",
                         "Another window has moved pages of this book and not saved that yet.");
        found = {Platform::nativePath(files.lock()),
                 QCoreApplication::translate("PagePictures", cause).toStdString()};
        return false;
    }
    lock = std::move(ours);
    if (Platform::fileExists(files.order()) && !settle()) {
        lock.reset();
        return false;
    }
    return true;
}

// What a program left that was stopped: back to what the project file says, or to the end where
// that was saved already.
bool PagePictures::settle()
{
    const Oid::PictureOrder ours = std::exchange(order, {});
    const auto ignore = [](const Diagnostic& /*diagnostic*/) {};
    bool done = true;
    if (const auto left = Oid::readPictureOrder(project, ignore)) {
        order = *left;
        written = Oid::textOf(order);
        const bool isSaved = Oid::isSaved(project, order);
        done = moveTo(isSaved ? order.places : home(order.places));
        for (const auto& [picture, place] : order.places) {
            const std::string removed = files.aside(picture);
            if (done && place == kAside && Platform::fileExists(removed)) {
                done = work.remove(removed) || fail(removed);
            }
        }
        done = done && (work.remove(files.order()) || fail(files.order()));
        if (done) {
            project.movedPictures.clear();
        }
    } else {
        done = false;
        found = {Platform::nativePath(files.order()),
                 QCoreApplication::translate(
                     "PagePictures", "It is damaged. Put the pictures in order, then remove it.")
                     .toStdString()};
    }
    written.clear();
    order = ours;
    return done;
}

bool PagePictures::bring(const Places& target, const std::map<int, std::string>& copies)
{
    if (!begin()) {
        return false;
    }
    const Places before = order.places;
    Places withCopies = before;
    for (const auto& copy : copies) {
        withCopies[copy.first] = kAside;
    }
    const auto fetch = [&](const auto& copy) {
        const std::string place = files.aside(copy.first);
        return work.copy(copy.second, place) || fail(place);
    };
    const bool done = writePlaces(withCopies) && std::all_of(copies.begin(), copies.end(), fetch) &&
                      moveTo(target);
    if (!done && !written.empty()) {
        const FileProblem cause = found;
        moveTo(withCopies);
        for (const auto& copy : copies) {
            work.remove(files.aside(copy.first));
        }
        writePlaces(before);
        found = cause;
    }
    if (done) {
        project.movedPictures.clear();
    }
    if (written.empty() || order.places == home(order.places)) {
        finish();
    }
    return done;
}

// The heart of it. At any moment a picture is in its file aside if there is one, else at the place
// that the order on the disk says: nothing comes to a place while the order says the old ones, and
// when it is written anew, all that will move is aside.
bool PagePictures::moveTo(const Places& target)
{
    if (!moveAside(target) || !writePlaces(target)) {
        return false;
    }
    for (const auto& [picture, place] : target) {
        const std::string beside = files.aside(picture);
        if (place != kAside && Platform::fileExists(beside) && !move(beside, files.at(place))) {
            return false;
        }
    }
    return true;
}

bool PagePictures::moveAside(const Places& target)
{
    for (const auto& [picture, place] : order.places) {
        const auto wanted = target.find(picture);
        const bool stays = place == kAside || (wanted != target.end() && wanted->second == place);
        const std::string beside = files.aside(picture);
        if (!stays && !Platform::fileExists(beside) && Platform::fileExists(files.at(place)) &&
            !move(files.at(place), beside)) {
            return false;
        }
    }
    return true;
}

bool PagePictures::move(const std::string& from, const std::string& to)
{
    return work.move(from, to) || fail(to);
}

bool PagePictures::writePlaces(const Places& places)
{
    Oid::PictureOrder next = order;
    next.places = places;
    return write(next);
}

bool PagePictures::mayWrite(const std::string& file)
{
    if (FileSystem::placeOutside(FileSystem::getDirectoryOfPath(file), file).empty()) {
        return true;
    }
    found = {Platform::nativePath(file),
             QCoreApplication::translate("PagePictures",
                                         "It is a link to a file outside of the project's folder.")
                 .toStdString()};
    return false;
}

bool PagePictures::write(const Oid::PictureOrder& next)
{
    const std::string text = Oid::textOf(next);
    if (text != written && !mayWrite(files.order())) {
        return false;
    }
    if (text != written && !work.write(files.order(), text)) {
        return fail(files.order());
    }
    order = next;
    written = text;
    return true;
}

// Nothing more is to be told of.
bool PagePictures::finish()
{
    const bool done = written.empty() || work.remove(files.order()) || fail(files.order());
    if (done) {
        written.clear();
        lock.reset();
    }
    return done;
}

bool PagePictures::isSaved(PageId page) const
{
    const auto picture = numbers.find(page);
    return picture != numbers.end() && picture->second < savedPages;
}

void PagePictures::drop(PageId page)
{
    const auto picture = numbers.find(page);
    if (picture != numbers.end()) {
        order.places.erase(picture->second);
        numbers.erase(picture);
    }
}

void PagePictures::forget(PageId page)
{
    const auto copy = kept.find(page);
    if (copy != kept.end()) {
        keptFiles.forget({-1, copy->second});
        kept.erase(copy);
    }
}

PagesMoved PagePictures::moved(const std::vector<PageId>& pages) const
{
    PagesMoved all;
    all.saved = savedPages;
    bool any = static_cast<int>(pages.size()) < savedPages;
    for (const PageId page : pages) {
        const auto picture = numbers.find(page);
        const auto place = static_cast<int>(all.pictures.size());
        all.pictures.push_back(picture != numbers.end() ? picture->second : place);
        any = any || all.pictures.back() != place;
    }
    return any ? all : PagesMoved();
}

bool PagePictures::beforeSaving(const std::vector<PageId>& pages)
{
    found = {};
    if (folder.empty()) {
        return true;
    }
    if (written.empty() && Platform::fileExists(files.order())) {
        if (!begin()) {
            return false;
        }
        lock.reset();
    }
    if (!arrange(pages, Removed::aside)) {
        return false;
    }
    Oid::PictureOrder final = order;
    final.finalHash = Oid::hashOfFile(project);
    return written.empty() || write(final);
}

void PagePictures::couldNotSave()
{
    Oid::PictureOrder again = order;
    again.finalHash.clear();
    if (!written.empty()) {
        write(again);
    }
}

// Their files go with the save; undo needs them.
void PagePictures::keepRemoved(const std::vector<PageId>& pages)
{
    for (auto entry = numbers.begin(); entry != numbers.end();) {
        if (contains(pages, entry->first)) {
            ++entry;
            continue;
        }
        const std::string file = files.aside(entry->second);
        if (!folder.empty() && Platform::fileExists(file)) {
            std::string copy;
            kept[entry->first] = keptFiles.keep(file, copy) ? copy : file;
        }
        entry = numbers.erase(entry);
    }
}

// Itself, since no copy of it could be made.
bool PagePictures::isKept(const std::string& file) const
{
    return std::any_of(kept.begin(), kept.end(),
                       [&](const auto& copy) { return copy.second == file; });
}

void PagePictures::saved(const std::vector<PageId>& pages)
{
    keepRemoved(pages);
    if (!written.empty()) {
        for (const auto& [picture, place] : order.places) {
            const std::string removed = files.aside(picture);
            if (place == kAside && Platform::fileExists(removed) && !isKept(removed)) {
                work.remove(removed);
            }
        }
        finish();
    }
    number(pages);
}

PagePictures::Renamed PagePictures::wentElsewhere(const std::vector<PageId>& pages)
{
    if (isInPlace()) {
        return {};
    }
    keepRemoved(pages);
    const std::map<PageId, std::string> copies = std::exchange(kept, {});
    Renamed renamed = leave();
    restart(pages);
    kept = copies;
    return renamed;
}

PagePictures::Renamed PagePictures::leave()
{
    Renamed renamed;
    if (!written.empty()) {
        for (const auto& entry : order.places) {
            const std::string from = files.fileOf(order, entry.first);
            if (Platform::fileExists(from)) {
                renamed.emplace_back(from, files.at(entry.first));
            }
        }
        if (moveTo(home(order.places))) {
            finish();
        }
    }
    written.clear();
    lock.reset();
    return renamed;
}
