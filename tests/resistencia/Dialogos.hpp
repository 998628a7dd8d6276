#pragma once

#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "resistencia/Recursos.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>

namespace OryUtils::Testes {

/// One dialog of each kind in turn. Whoever drives the toolkit answers it: with its default button when AConfirmar,
/// else by closing it.
inline void MostrarDialogo(TOryUtilsDialogs& ADialogos, int AVez, bool AConfirmar) {
    std::u16string valor = u"antes";
    const auto escolher = [&] {
        return ADialogos.ConfirmacaoCustomizada(u"?", mtWarning, {mbYes, mbNo}, 0, u"T", {u"&Um", u"&Dois"}) == mrYes;
    };
    const std::function<void()> dialogos[] = {
        [&] { ADialogos.Informacao(u"Mensagem"); },
        [&] { ADialogos.Erro(u"Uma mensagem\r\nde duas linhas"); },
        [&] { EXPECT_FALSE(ADialogos.Confirmacao(u"Excluir?", btNo)); },
        [&] { EXPECT_EQ(escolher(), AConfirmar); },
        [&] { EXPECT_EQ(ADialogos.InputQuery(u"T", u"Valor", valor), AConfirmar); },
    };
    dialogos[AVez % 5]();
    EXPECT_EQ(valor, u"antes");
}

/// Shows dialogs AVezes times and tells what the process holds meanwhile; after the first ones nothing may grow.
/// AMostrar gets the number of each.
inline void MostrarSemCrescimento(int AVezes, const std::function<void(int)>& AMostrar) {
    constexpr int CPrimeiros = 100;
    // A dialog that is lost takes kilobytes: ten thousand of them would be far above this.
    constexpr long CFolgaDeMemoria = 2'000;
    for (int i = 0; i < std::min(CPrimeiros, AVezes); ++i) AMostrar(i);
    const TRecursos antes = BuscarRecursos();
    const long memoria = BuscarMemoriaKiB();
    const auto contar = [](int AFeitos) {
        std::cout << AFeitos << " dialogs: ";
        for (const auto& [nome, quantos] : BuscarRecursos()) std::cout << quantos << ' ' << nome << ", ";
        std::cout << BuscarMemoriaKiB() << " KiB" << std::endl;
    };
    contar(0);
    for (int i = 0; i < AVezes && !testing::Test::HasFailure(); ++i) {
        AMostrar(i);
        if ((i + 1) % 500 == 0 || i + 1 == AVezes) contar(i + 1);
    }
    ExigirSemCrescimento(antes, std::to_string(AVezes) + " dialogs");
    EXPECT_LE(BuscarMemoriaKiB(), memoria + CFolgaDeMemoria);
}

}  // namespace OryUtils::Testes
