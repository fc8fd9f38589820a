#include "gme/GameFile.h"

#include "base/FileSystem.h"

#include <memory>

namespace gme {

namespace {

struct CloseFile
{
    void operator()(FILE* file) const { fclose(file); }
};

// Adds up what it writes, for the checksum at the end.
class SummingFile
{
public:
    explicit SummingFile(FILE* openFile) : file(openFile) {}

    bool write(const unsigned char* bytes, size_t count)
    {
        for (size_t i = 0; i < count; ++i) {
            sum += bytes[i];
        }
        return fwrite(bytes, 1, count, file) == count;
    }
    bool write(const std::string& bytes)
    {
        return write(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    }
    bool writeChecksum()
    {
        ByteBuffer checksum;
        checksum.put32(sum);
        return write(checksum.text());
    }

private:
    FILE* file;
    uint32_t sum = 0;
};

// False with the reason in problem.
bool writeMedia(const MediaFile& media, SummingFile& out, std::string& problem)
{
    const std::unique_ptr<FILE, CloseFile> file(FileSystem::myfopen(media.path, "rb"));
    std::vector<unsigned char> block(1 << 16);
    uint64_t size = 0;
    size_t count = 0;
    while (file != nullptr && (count = fread(block.data(), 1, block.size(), file.get())) > 0) {
        size += count;
        applyCypher(block.data(), count);
        if (!out.write(block.data(), count)) {
            problem = "cannot be written";
            return false;
        }
    }
    if (file == nullptr || ferror(file.get()) != 0 || size != media.size) {
        problem = "is incomplete: the audio file " + media.path + " cannot be read";
        return false;
    }
    return true;
}

}  // namespace

bool writeGame(const Game& game, FILE* file, std::string& problem)
{
    const GameLayout layout = layOut(game);
    if (layout.size > kLargestGame) {
        problem = "would be larger than 4 GiB";
        return false;
    }
    for (const MediaFile& media : game.media.files()) {
        if (media.path.empty()) {
            problem = "would be incomplete: it was made without its audio";
            return false;
        }
    }
    problem = "cannot be written";
    SummingFile out(file);
    if (!out.write(layout.beforeMedia.text())) {
        return false;
    }
    for (const MediaFile& media : game.media.files()) {
        if (!writeMedia(media, out, problem)) {
            return false;
        }
    }
    return out.write(layout.behindMedia.text()) && out.writeChecksum();
}

}  // namespace gme
