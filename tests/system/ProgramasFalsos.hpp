#pragma once

#include "files/ApoioArquivos.hpp"
#include "system/Ambiente.hpp"

#include <string>
#include <string_view>
#include <vector>

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
    void Por(const std::string& ANome, const std::vector<std::string>& ARespostas) {
        std::filesystem::copy_file(FPrograma, FPasta / (ANome + "_"),
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::rename(FPasta / (ANome + "_"), FPasta / (ANome + FPrograma.extension().string()));
        const auto resposta = [&](std::size_t AVez) { return FPasta / (ANome + "." + std::to_string(AVez)); };
        for (std::size_t vez = 1; std::filesystem::remove(resposta(vez)); ++vez) {
        }
        for (std::size_t i = 0; i < ARespostas.size(); ++i) GravarBytes(resposta(i + 1), ARespostas[i]);
    }
    /// A line of the test's own among those that tell how the programs were called.
    void Anotar(std::string_view ALinha) { GravarBytes(FPasta / "chamadas", ALinha, std::ios::app); }
    /// How the programs were called since the last time that this was asked: "arp|-a\nping|10.0.0.1\n".
    std::string LerChamadas() {
        std::string chamadas = LerBytes(FPasta / "chamadas");
        std::erase(chamadas, '\r');
        std::filesystem::remove(FPasta / "chamadas");
        return chamadas;
    }

private:
    static constexpr char CSeparador = std::filesystem::path::preferred_separator == '/' ? ':' : ';';
    const std::filesystem::path FAnterior = std::filesystem::current_path();
    const std::filesystem::path FPrograma = std::filesystem::absolute(ORY_PROGRAMA_AUXILIAR);
    const TPastaTemporaria FPasta{u"ory_falsos_"};
    const TVariavel FPath{"PATH", FPasta.Caminho().string() + CSeparador + BuscarVariavel("PATH")};
    const TVariavel FVariavel{"ORY_PROGRAMAS_FALSOS", FPasta.Caminho().string()};
};

}  // namespace Testes
