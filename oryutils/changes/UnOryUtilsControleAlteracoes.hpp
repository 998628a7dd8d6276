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

/// Brings a data store up to date by change steps. Each step is registered with the version to which it leads. Steps
/// run in the order of their registration, up to the first one whose version the store has already reached. Events ask
/// for the version of the store and tell how each step ended. Everything runs on the caller's thread.
/// Example:
///   TOryUtilsControleAlteracoes controle(u"1.02");
///   controle.OnBuscarVersaoAtualAlteracao = TEventoBuscarVersaoAlteracao::De<&TTela::LerVersao>(tela);
///   controle.OnExecutarMetodoAlteracao = TEventoExecutarMetodoAlteracao::De<&TTela::GravarVersao>(tela);
///   controle.Adicionar(u"1.01", [&] { banco.Executar(u"ALTER TABLE ..."); });
///   controle.Adicionar(u"1.02", [&] { banco.Executar(u"CREATE INDEX ..."); });
///   controle.Executar();
class ORY_API TOryUtilsControleAlteracoes : public TObjeto {
public:
    /// AVersaoMaxima  kept for the caller; Executar does not look at it.
    explicit TOryUtilsControleAlteracoes(std::u16string_view AVersaoMaxima) : FVersaoMaxima(AVersaoMaxima) {}
    TOryUtilsControleAlteracoes(const TOryUtilsControleAlteracoes&) = delete;
    TOryUtilsControleAlteracoes& operator=(const TOryUtilsControleAlteracoes&) = delete;

    const std::u16string& GetVersaoMaxima() const noexcept { return FVersaoMaxima; }

    /// Appends a step. Register steps in ascending order of their versions: the list is neither sorted nor checked.
    /// Versions are compared character by character ("10" comes before "9"), so write every part with the same number
    /// of digits. A step may append others; they run in the same Executar.
    void Adicionar(std::u16string_view AVersao, TMetodoControleAlteracao AMetodo);

    /// Runs the steps. Before each step OnBuscarVersaoAtualAlteracao tells the version of the store. When that is the
    /// step's version or a later one, OnStatusExecucao gets "Não existem mais métodos para executar." and the run ends.
    /// Otherwise OnStatusExecucao gets "Executando alterações referente a versão: " and the version, and the step runs.
    /// A step that raises anything, EAbort included, does not end the run: its message goes to
    /// OnErroExecutarMetodoAlteracao and the next step follows. An empty closure counts as a step that raises, and so
    /// does one whose OnExecutarMetodoAlteracao raises: what it did could not be recorded. An exception of any other
    /// event reaches the caller.
    void Executar();

    /// Fills in the version of the store. Without this event the version is empty, so every step with a version runs.
    TEventoBuscarVersaoAlteracao OnBuscarVersaoAtualAlteracao{};
    /// Gets the message of a step that raised, or whose recording did.
    TEventoStatusExecucao OnErroExecutarMetodoAlteracao{};
    /// Tells that a step ended without an error: the place to record its version.
    TEventoExecutarMetodoAlteracao OnExecutarMetodoAlteracao{};
    /// Gets the texts of Executar.
    TEventoStatusExecucao OnStatusExecucao{};

private:
    std::u16string BuscarVersaoAtualAlteracao();
    void ValidarStatusExecucao(std::u16string_view AStatus);
    void ExecutarPasso(const TDadosControleAlteracaoIOP& ADados);

    std::u16string FVersaoMaxima;
    std::vector<std::unique_ptr<const TDadosControleAlteracaoIOP>> FListaControle{};
};

}  // namespace OryUtils
