#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

/// A folder of the test's own, with a name that asks for UTF-16; it goes with its files at the end.
class TPastaTemporaria {
public:
    explicit TPastaTemporaria(std::u16string_view APrefixo = u"Versões de teste ") {
        std::random_device sorteio;
        do (FPasta = std::filesystem::temp_directory_path() / APrefixo) += std::to_string(sorteio());
        while (!std::filesystem::create_directory(FPasta));
    }
    TPastaTemporaria(const TPastaTemporaria&) = delete;
    TPastaTemporaria& operator=(const TPastaTemporaria&) = delete;
    ~TPastaTemporaria() {
        std::error_code erro;
        std::filesystem::remove_all(FPasta, erro);
    }

    const std::filesystem::path& Caminho() const { return FPasta; }
    std::filesystem::path operator/(const std::filesystem::path& AArquivo) const { return FPasta / AArquivo; }
    std::u16string Nome(const std::filesystem::path& AArquivo) const { return (FPasta / AArquivo).u16string(); }
    /// The whole name of the file written.
    std::u16string Gravar(std::u16string_view AArquivo, std::string_view ABytes) const {
        std::ofstream(FPasta / AArquivo, std::ios::binary)
            .write(ABytes.data(), static_cast<std::streamsize>(ABytes.size()));
        return Nome(AArquivo);
    }

private:
    std::filesystem::path FPasta;
};

inline std::string LerBytes(const std::filesystem::path& AArquivo) {
    std::ifstream arquivo(AArquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(arquivo), {}};
}

inline void GravarBytes(const std::filesystem::path& AArquivo, std::string_view ABytes,
                        std::ios::openmode AModo = std::ios::trunc) {
    std::ofstream(AArquivo, std::ios::binary | std::ios::out | AModo) << std::string_view(ABytes);  // closed at once
}
