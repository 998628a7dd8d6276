#pragma once

#include "system/Ambiente.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace Testes {

/// A folder of programs that stand for commands of the system, on the path and as the current folder, where Windows
/// looks before its own folders. Everything is as before when it goes.
class TProgramasFalsos {
public:
    TProgramasFalsos()
        : FPathAnterior(BuscarVariavel("PATH")),
          FAnterior(std::filesystem::current_path()),
          FPrograma(std::filesystem::absolute(ORY_PROGRAMA_FALSO)) {
        FPasta = std::filesystem::temp_directory_path() / ("ory_falsos_" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(FPasta);
        constexpr char CSeparador = std::filesystem::path::preferred_separator == '/' ? ':' : ';';
        DefinirVariavel("PATH", FPasta.string() + CSeparador + FPathAnterior);
        DefinirVariavel("ORY_PROGRAMAS_FALSOS", FPasta.string());
        std::filesystem::current_path(FPasta);
    }
    ~TProgramasFalsos() {
        std::error_code erro;
        std::filesystem::current_path(FAnterior, erro);
        DefinirVariavel("PATH", FPathAnterior);
        std::filesystem::remove_all(FPasta, erro);
    }
    TProgramasFalsos(const TProgramasFalsos&) = delete;
    TProgramasFalsos& operator=(const TProgramasFalsos&) = delete;

    /// The program ANome that prints ARespostas one after the other; without any it prints nothing.
    void Por(const std::string& ANome, std::initializer_list<std::string_view> ARespostas) {
        std::filesystem::copy_file(FPrograma, FPasta / (ANome + "_"),
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::rename(FPasta / (ANome + "_"), FPasta / (ANome + FPrograma.extension().string()));
        int vez = 0;
        for (const std::string_view resposta : ARespostas)
            std::ofstream(FPasta / (ANome + "." + std::to_string(++vez)), std::ios::binary) << resposta;
    }
    /// How the programs were called since the last time that this was asked: "arp|-a\nping|10.0.0.1\n".
    std::string LerChamadas() {
        std::ifstream arquivo(FPasta / "chamadas");
        std::string chamadas(std::istreambuf_iterator<char>(arquivo), {});
        arquivo.close();
        std::filesystem::remove(FPasta / "chamadas");
        return chamadas;
    }

private:
    std::string FPathAnterior;
    std::filesystem::path FAnterior;
    std::filesystem::path FPrograma;
    std::filesystem::path FPasta{};
};

}  // namespace Testes
