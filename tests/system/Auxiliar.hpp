#pragma once

#include "oryutils/runtime/Costura.hpp"

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

namespace OryUtils::Testes {

/// A new folder that goes with the object.
class TPastaTemporaria {
public:
    TPastaTemporaria() {
        static int contador = 0;
        const auto base = std::filesystem::temp_directory_path();
        // Tests of several build trees may run at the same time.
        do FCaminho = base / ("orysistema" + std::to_string(++contador));
        while (!std::filesystem::create_directory(FCaminho));
    }
    ~TPastaTemporaria() {
        std::error_code erro;
        std::filesystem::remove_all(FCaminho, erro);
    }
    TPastaTemporaria(const TPastaTemporaria&) = delete;
    TPastaTemporaria& operator=(const TPastaTemporaria&) = delete;
    std::filesystem::path operator/(const std::string& ANome) const { return FCaminho / ANome; }
    std::u16string Texto() const { return FCaminho.u16string(); }

private:
    std::filesystem::path FCaminho;
};

/// The program of the tests (tests/system/programas) as the first words of a command line, to be followed by more.
inline std::filesystem::path ProgramaAuxiliar() {
    return std::filesystem::absolute(ORY_PROGRAMA_AUXILIAR).make_preferred();
}
inline std::u16string Comando(std::u16string_view AArgumentos,
                              const std::filesystem::path& APrograma = ProgramaAuxiliar()) {
    return u"\"" + APrograma.u16string() + u"\" " + std::u16string(AArgumentos);
}
inline std::u16string EntreAspas(const std::filesystem::path& ACaminho) { return u"\"" + ACaminho.u16string() + u"\""; }

/// While it lives, AAcao is called whenever the library lets the application process its messages.
class TAoProcessarMensagens {
public:
    explicit TAoProcessarMensagens(std::function<void()> AAcao) {
        Acao() = std::move(AAcao);
        CosturaInterface().ProcessarMensagens = [] { Acao()(); };
    }
    ~TAoProcessarMensagens() { CosturaInterface() = FAnterior; }
    TAoProcessarMensagens(const TAoProcessarMensagens&) = delete;
    TAoProcessarMensagens& operator=(const TAoProcessarMensagens&) = delete;

private:
    static std::function<void()>& Acao() {
        static std::function<void()> acao;
        return acao;
    }
    TCosturaInterface FAnterior = CosturaInterface();
};

}  // namespace OryUtils::Testes
