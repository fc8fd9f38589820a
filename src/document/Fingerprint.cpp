#include "document/Fingerprint.h"

#include <functional>
#include <string_view>

void Fingerprint::addBytes(const void* bytes, std::size_t count)
{
    constexpr std::uint64_t kSpreading = 0x9E3779B97F4A7C15;  // odd, its bits as if by chance
    const std::string_view view(static_cast<const char*>(bytes), count);
    bits = (bits ^ std::hash<std::string_view>()(view)) * kSpreading;
    bits ^= bits >> 29;
}

void Fingerprint::add(const QString& text)
{
    addBytes(text.utf16(), sizeof(ushort) * static_cast<std::size_t>(text.size()));
}

void Fingerprint::add(const Oid::OidProject& project)
{
    add(project.productName);
    addNumber(project.productId);
    addNumber(project.pictures.size());
    for (const Oid::PICTURE& picture : project.pictures) {
        add(picture);
    }
    for (const auto& [name, entry] : project.oids) {
        add(name);
        addNumber(entry.oid);
    }
}

void Fingerprint::add(const Oid::PICTURE& picture)
{
    addNumber(picture.paperWidth);
    addNumber(picture.paperHeight);
    addNumber(picture.dpi);
    addNumber(picture.polys.size());
    for (const Oid::POLY& area : picture.polys) {
        add(area.name);
        addBytes(area.points.data(), sizeof(Oid::PNT) * area.points.size());
    }
}
