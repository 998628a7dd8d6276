#pragma once

#include "oryutils/changes/UnOryUtilsControleAlteracoes.hpp"

#include "pesquisa/Banco.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace Exemplos {

/// Brings a program's database from whatever version it is at to the newest one. The table ALTERACAO records what has
/// been done and when.
class TAtualizacao {
public:
    explicit TAtualizacao(TBanco& ABanco);

    /// The version that the database is at; empty when it is new.
    std::u16string BuscarVersao();
    /// Runs the steps that are missing, those past AVersaoMaxima left out. When one fails, those behind it wait for the
    /// next time. True when none failed.
    bool Atualizar(std::u16string_view AVersaoMaxima);

    /// What was done, for people.
    OryUtils::TEventoStatusExecucao OnDizer{};

private:
    void LerVersao(OryUtils::TObjeto* ASender, std::u16string& AVersao);
    void GravarVersao(OryUtils::TObjeto* ASender, std::u16string_view AVersao);
    void Dizer(OryUtils::TObjeto* ASender, std::u16string_view ATexto);
    void Falhar(OryUtils::TObjeto* ASender, std::u16string_view AErro);

    TBanco& FBanco;
    bool FFalhou = false;
};

/// The version of the last step.
std::u16string_view BuscarVersaoMaisNova() noexcept;

}  // namespace Exemplos
