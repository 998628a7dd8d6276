#include "mensagem/Lembranca.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "Opcoes.hpp"

namespace Ory {

using namespace OryUtils;

void DescreverLembranca(TOpcoes AComando, TPedidoDeLembranca& APedido) {
    AComando.Valor("--lembrar", APedido.Lembrar,
                   "com a caixa \"Não perguntar novamente\": a resposta dada com ela marcada fica nas\n"
                   "configurações do usuário, sob esta chave, e da próxima vez sai sem perguntar; cancelar não fica");
    AComando.Valor("--esquecer", APedido.Esquecer, "em vez de mostrar esquece a resposta desta chave");
    AComando.Marca("--esquecer-tudo", APedido.EsquecerTudo, "em vez de mostrar esquece todas as respostas");
}

bool Esquecer(const TPedidoDeLembranca& APedido) {
    if (!APedido.Esquecer.empty()) GOryUtilsDialogs->EsquecerResposta(DeUtf8(APedido.Esquecer));
    if (APedido.EsquecerTudo) GOryUtilsDialogs->EsquecerRespostas();
    return APedido.EsquecerTudo || !APedido.Esquecer.empty();
}

TOryUtilsDialogsRetornoMensagemLembradaIOP PerguntarOuLembrar(
    const TPedidoDeLembranca& APedido, const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros) {
    TOryUtilsDialogsFormCustomizadoLembradaIOP parametros;
    parametros.Assign(AParametros);
    parametros.Chave = DeUtf8(APedido.Lembrar);
    return *GOryUtilsDialogs->ConfirmacaoCustomizadaLembrada(parametros);
}

}  // namespace Ory
