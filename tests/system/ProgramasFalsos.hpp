#pragma once

#include "files/ApoioArquivos.hpp"
#include "system/Ambiente.hpp"

#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>

namespace Testes {

/// A folder of programs that stand for commands of the system, on the path and as the current folder, where Windows
/// looks before its own folders. Everything is as before when it goes.
class TProgramasFalsos {
public:
    TProgramasFalsos() { std::filesystem::current_path(FPasta.Caminho()); }
    ~TProgramasFalsos() {
        std::error_code erro;
        std::filesystem::current_path(FAnterior, erro);
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
    static constexpr char CSeparador = std::filesystem::path::preferred_separator == '/' ? ':' : ';';
    const std::filesystem::path FAnterior = std::filesystem::current_path();
    const std::filesystem::path FPrograma = std::filesystem::absolute(ORY_PROGRAMA_FALSO);
    const TPastaTemporaria FPasta{u"ory_falsos_"};
    const TVariavel FPath{"PATH", FPasta.Caminho().string() + CSeparador + BuscarVariavel("PATH")};
    const TVariavel FVariavel{"ORY_PROGRAMAS_FALSOS", FPasta.Caminho().string()};
};

}  // namespace Testes
