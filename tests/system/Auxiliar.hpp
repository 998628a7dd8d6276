#pragma once

#include "oryutils/runtime/Costura.hpp"

#include "files/ApoioArquivos.hpp"
#include "system/Ambiente.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

namespace OryUtils::Testes {

/// With a name that programs of the tests, too, read in any encoding.
struct TPastaTemporaria : ::TPastaTemporaria {
    TPastaTemporaria() : ::TPastaTemporaria(u"orysistema") {}
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

/// The command line of the auxiliary program that sleeps, and the wait until it does. One that is killed before it is
/// up leaves its console behind under Wine, waiting for it and holding what the tests write to.
class TDorminhoco {
public:
    std::u16string Argumentos() const { return u"dormir " + EntreAspas(FPasta / "acordou"); }
    void Esperar() const { EXPECT_TRUE(::Testes::EsperarArquivo(FPasta / "acordou")) << "it did not start"; }

private:
    TPastaTemporaria FPasta;
};

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
