#pragma once

#include "foundation/copies/archiver.h"

#include <sstream>

namespace winvrx::testing {

/// An archive that can be read in a test: "name size" and a line end, then the bytes, file by file.
class PlainArchiver final : public Archiver {
  public:
    bool works = true;

    [[nodiscard]] std::string pack(const Source& next) const override {
        if (!works) throw Fault("no room to pack", "Não há memória para a cópia.");
        std::string archive;
        while (const auto file = next())
            archive += packedFile(file->name, file->bytes);
        return archive;
    }

    [[nodiscard]] static std::string packedFile(const std::string& name, const std::string& bytes) {
        return name + "|" + std::to_string(bytes.size()) + "\n" + bytes;
    }

    void unpack(std::string_view archive, const Choice& chosen,
                const Visitor& visit) const override {
        std::istringstream in{std::string(archive)};
        std::string name;
        std::string size;
        while (std::getline(in, name, '|')) {
            if (!std::getline(in, size)) throw DamagedArchive("cut short");
            std::string bytes(std::stoul(size), '\0');
            if (!in.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
                throw DamagedArchive("cut short");
            if (chosen(name)) visit({name, std::move(bytes)});
        }
    }
};

}  // namespace winvrx::testing
