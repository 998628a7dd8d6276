#pragma once

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Controle.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace OryUtils {

/// What reached the user, in order: "foco" and the warnings.
inline std::vector<std::u16string> GRelatos;

struct TControleFalso : TWinControl {
    bool Focavel = true;
    const void* Identidade = this;
    const void* GetIdentidade() const noexcept override { return Identidade; }
    bool PodeReceberFoco() const override { return Focavel; }
    void ReceberFoco() override { GRelatos.emplace_back(u"foco"); }
};

/// A rule of a field over a value, and what it reports when asked to say "Falhou.".
struct TCasoDeRegra {
    void (*Validar)(const TObjeto*, TWinControl*, std::u16string_view, std::u16string_view);
    std::u16string_view Valor;
    const char* Relato;
};

class Frame : public testing::Test {
protected:
    void SetUp() override {
        GRelatos.clear();
        CosturaInterface().Alerta = [](std::u16string_view AMensagem) { GRelatos.emplace_back(AMensagem); };
    }
    void TearDown() override { CosturaInterface() = BuscarCosturaPadrao(); }

    /// What AChamada reports: the warning, or "nada" when it returns without one. Checks the sequence on the way.
    static std::string Relato(const std::function<void()>& AChamada) {
        GRelatos.clear();
        try {
            AChamada();
            EXPECT_TRUE(GRelatos.empty()) << "a report ends with the abort";
            return "nada";
        } catch (const EAbort&) {
            EXPECT_EQ(GRelatos.size(), 2U);
            EXPECT_EQ(GRelatos.front(), u"foco");
            return ParaUtf8(GRelatos.back());
        }
    }

    /// Each case at this control's turn, and at another one's.
    void Conferir(std::span<const TCasoDeRegra> ACasos) {
        for (const TCasoDeRegra& caso : ACasos) {
            EXPECT_EQ(Relato([&] { caso.Validar(nullptr, &Controle, caso.Valor, u"Falhou."); }), caso.Relato)
                << ParaUtf8(caso.Valor);
            EXPECT_EQ(Relato([&] { caso.Validar(&Outro, &Controle, caso.Valor, u"Falhou."); }), "nada")
                << "not this control's turn: " << ParaUtf8(caso.Valor);
        }
    }

    TControleFalso Controle, Outro;
};

}  // namespace OryUtils
