#pragma once

#include "oid/OidProject.h"

#include <QString>

#include <cstdint>

// A number made of everything added: another one when anything is added that differs. It costs
// little, also for thousands of areas and a long script, so that one can ask it again and again.
class Fingerprint
{
public:
    void add(const QString& text);
    // All but the path and the script, which the compiler holds.
    void add(const Oid::OidProject& project);

    std::uint64_t value() const { return bits; }

private:
    void addBytes(const void* bytes, std::size_t count);

    template <class T>
    void addNumber(T number)
    {
        addBytes(&number, sizeof number);
    }

    void add(const std::string& text) { addBytes(text.data(), text.size()); }
    void add(const Oid::PICTURE& picture);

    std::uint64_t bits = 0;
};
