#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/changes/UnOryUtilsControleAlteracoesEventos.hpp"
#include "oryutils/changes/UnOryUtilsControleAlteracoesIOP.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Brings a data store up to date: runs change steps in the order of their registration, each tagged with the version
/// that it leads to, and stops at the first one that the store is not behind of. Events tell it where the store stands
/// and what follows a step. Everything runs on the caller's thread.
/// Example:
///   TOryUtilsControleAlteracoes controle(u"1.02");
///   controle.OnBuscarVersaoAtualAlteracao = TEventoBuscarVersaoAlteracao::De<&TTela::LerVersao>(tela);
///   controle.OnExecutarMetodoAlteracao = TEventoExecutarMetodoAlteracao::De<&TTela::GravarVersao>(tela);
///   controle.Adicionar(u"1.01", [&] { banco.Executar(u"ALTER TABLE ..."); });
///   controle.Adicionar(u"1.02", [&] { banco.Executar(u"CREATE INDEX ..."); });
///   controle.Executar();
class ORY_API TOryUtilsControleAlteracoes : public TObjeto {
public:
    /// AVersaoMaxima  kept for the caller; the runner itself does not look at it.
    explicit TOryUtilsControleAlteracoes(std::u16string_view AVersaoMaxima) : FVersaoMaxima(AVersaoMaxima) {}
    TOryUtilsControleAlteracoes(const TOryUtilsControleAlteracoes&) = delete;
    TOryUtilsControleAlteracoes& operator=(const TOryUtilsControleAlteracoes&) = delete;

    const std::u16string& GetVersaoMaxima() const noexcept { return FVersaoMaxima; }

    /// Appends a step. The caller registers in ascending order of the versions, which nobody sorts or checks: texts are
    /// compared character by character ("10" comes before "9"), so write every part with the same number of digits.
    /// A step may append others; they run in the same Executar.
    void Adicionar(std::u16string_view AVersao, TMetodoControleAlteracao AMetodo);

    /// Runs the steps. Before each the current version is asked for; when it is the step's version or past it,
    /// OnStatusExecucao gets "Não existem mais métodos para executar." and the run ends, later steps unseen. Otherwise
    /// OnStatusExecucao gets "Executando alterações referente a versão: " and the version, and the step runs.
    /// A step that raises (anything, the silent exception too, or an empty closure) does not end the run: its message
    /// goes to OnErroExecutarMetodoAlteracao and the next step follows. What the events raise reaches the caller.
    void Executar();

    /// Where the version of the store comes from. Not assigned: it is empty, so every step with a version runs.
    TEventoBuscarVersaoAlteracao OnBuscarVersaoAtualAlteracao{};
    /// Gets the message of a step that raised.
    TEventoStatusExecucao OnErroExecutarMetodoAlteracao{};
    /// A step ended well.
    TEventoExecutarMetodoAlteracao OnExecutarMetodoAlteracao{};
    TEventoStatusExecucao OnStatusExecucao{};

private:
    std::u16string BuscarVersaoAtualAlteracao();
    void ValidarStatusExecucao(std::u16string_view AStatus);
    bool ExecutouMetodo(const TMetodoControleAlteracao& AMetodo);

    std::u16string FVersaoMaxima;
    std::vector<std::unique_ptr<const TDadosControleAlteracaoIOP>> FListaControle{};
};

}  // namespace OryUtils
