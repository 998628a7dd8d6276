#include "oryutils/platform/ErroDoSistema.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/VersaoDoWindows.hpp"

namespace OryUtils {

std::u16string TOryUtilsSistema::BuscarNomeComputador() {
    std::uint32_t erro = 0;
    const auto nome = Interno::BuscarNomeDaMaquina(erro);
    if (!nome)
        throw Exception(u"Erro ao retornar nome do computador.\r\n\r\nErro ocorrido: \r\n\r\n" +
                        Interno::DescreverErroDoSistema(erro));
    return *nome;
}

std::u16string TOryUtilsSistema::BuscarNomeUsuarioLogadoNoWindows() {
    return Interno::BuscarNomeDoUsuario().value_or(u"Desconhecido");
}

TVersaoWindows TOryUtilsSistema::BuscarVersaoWindows() {
    const auto versao = Interno::BuscarVersaoDoSistema();
    return versao ? Interno::ClassificarVersao(*versao) : vwUnknown;
}

int TOryUtilsSistema::VarToIntDef(const Variant& AValor, int APadrao) {
    try {
        return TextoParaIntPadrao(VarianteParaTexto(AValor), APadrao);
    } catch (const EVariantError&) {  // an array has no text
        return APadrao;
    }
}

}  // namespace OryUtils
