#include "oryutils/changes/UnOryUtilsControleAlteracoes.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <exception>
#include <utility>

namespace OryUtils {
namespace {

constexpr std::u16string_view CNadaMais = u"Não existem mais métodos para executar.";
constexpr std::u16string_view CExecutando = u"Executando alterações referente a versão: ";
constexpr std::u16string_view CErroSemTexto = u"Erro desconhecido.";

}  // namespace

void TOryUtilsControleAlteracoes::Adicionar(std::u16string_view AVersao, TMetodoControleAlteracao AMetodo) {
    FListaControle.push_back(std::make_unique<const TDadosControleAlteracaoIOP>(
        TDadosControleAlteracaoIOP{.Metodo = std::move(AMetodo), .Versao = std::u16string(AVersao)}));
}

void TOryUtilsControleAlteracoes::Executar() {
    // By position, since a step may append to the list, and the list then moves in memory.
    for (std::size_t i = 0; i < FListaControle.size(); ++i) {
        const TDadosControleAlteracaoIOP& dados = *FListaControle[i];
        if (BuscarVersaoAtualAlteracao() >= dados.Versao) return ValidarStatusExecucao(CNadaMais);
        ValidarStatusExecucao(std::u16string(CExecutando) + dados.Versao);
        ExecutarPasso(dados);
    }
}

std::u16string TOryUtilsControleAlteracoes::BuscarVersaoAtualAlteracao() {
    std::u16string versao;
    OnBuscarVersaoAtualAlteracao(this, versao);
    return versao;
}

void TOryUtilsControleAlteracoes::ValidarStatusExecucao(std::u16string_view AStatus) {
    OnStatusExecucao(this, AStatus);
}

void TOryUtilsControleAlteracoes::ExecutarPasso(const TDadosControleAlteracaoIOP& ADados) {
    std::u16string erro;
    try {
        ADados.Metodo();
        // A step that could not be recorded has failed, too.
        return OnExecutarMetodoAlteracao(this, ADados.Versao);
    } catch (const Exception& excecao) {
        erro = excecao.GetMensagem();
    } catch (const std::exception& excecao) {
        erro = DeUtf8(excecao.what());
    } catch (...) {
        erro = CErroSemTexto;
    }
    OnErroExecutarMetodoAlteracao(this, erro);
}

}  // namespace OryUtils
