// Shows one dialog with sample texts, for the pictures of the documentation: telas NAME. Without a name, lists them.
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

namespace {

using namespace OryUtils;

template <typename T>
T Montar(TMsgDlgType ATipo, std::u16string_view ATitulo, std::u16string_view AMensagem) {
    T parametros;
    parametros.TipoDialogo = ATipo;
    parametros.Titulo = ATitulo;
    parametros.Mensagem = AMensagem;
    parametros.Botoes = {mbYes, mbNo, mbCancel};
    parametros.CaptionBotoes = {u"&Sim", u"&Não", u"&Cancelar"};
    parametros.BotaoPadrao = mrYes;
    return parametros;
}

struct TTela {
    const char* Nome;
    void (*Mostrar)();
};

// clang-format off
const TTela CTelas[] = {
    {"informacao", [] { GOryUtilsDialogs->Informacao(u"Operação concluída com sucesso."); }},
    {"aviso", [] { GOryUtilsDialogs->Alerta(u"CNPJ inválido. Verifique."); }},
    {"erro", [] { GOryUtilsDialogs->Erro(u"Não foi possível gravar o arquivo.\r\nO disco está cheio & protegido."); }},
    {"confirmacao", [] { GOryUtilsDialogs->Confirmacao(u"Deseja excluir o cliente São João & Filhos Ltda.?", btNo); }},
    {"customizada", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoIOP>(mtConfirmation, u"Fechamento", u"O caixa ainda está aberto. O que deseja fazer?");
        p.CaptionBotoes = {u"&Fechar o caixa agora", u"&Manter aberto", u"&Cancelar"};
        p.FecharMensagemAutomaticamente = true;
        p.TempoFinalizacaoAutomatica = 90000;
        GOryUtilsDialogs->ConfirmacaoCustomizada(p);
    }},
    {"opcoes", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoComOpcoesIOP>(mtConfirmation, u"Impressão", u"Como deseja imprimir a nota?");
        p.OpcoesMensagem = {u"Na impressora padrão", u"Em arquivo PDF", u"Não imprimir agora, apenas gravar a nota"};
        p.OpcaoPadrao = 1;
        GOryUtilsDialogs->ConfirmacaoCustomizadaComOpcoes(p);
    }},
    {"checagem", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP>(mtConfirmation, u"Atualização", u"Há uma nova versão. Deseja atualizar?");
        p.TextoCaixaChecagem = u"Não perguntar novamente";
        GOryUtilsDialogs->ConfirmacaoCustomizadaComCaixaChecagem(p);
    }},
    {"checagem-abaixo", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP>(mtConfirmation, u"Atualização", u"Há uma nova versão. Deseja atualizar?");
        p.TextoCaixaChecagem = u"Não perguntar novamente";
        p.PosicaoCaixaChecagem = pccAbaixo;
        GOryUtilsDialogs->ConfirmacaoCustomizadaComCaixaChecagem(p);
    }},
    {"detalhes", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoComDetalhesIOP>(mtError, u"Erro", u"A nota não foi autorizada.");
        p.MensagemDetalhe = u"Código: 539\r\nMotivo: duplicidade da nota, com diferença na chave de acesso.";
        GOryUtilsDialogs->ConfirmacaoCustomizadaComDetalhes(p);
    }},
    {"lembrada", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoLembradaIOP>(mtConfirmation, u"Fechamento", u"O caixa ainda está aberto. Deseja fechá-lo?");
        p.Chave = u"FecharComCaixaAberto";
        GOryUtilsDialogs->ConfirmacaoCustomizadaLembrada(p);
    }},
    {"contagem", [] {
        auto p = Montar<TOryUtilsDialogsFormCustomizadoIOP>(mtWarning, u"Atualização", u"O sistema será reiniciado.");
        p.CaptionBotoes = {u"&Reiniciar agora", u"&Adiar", u"&Cancelar"};
        p.FecharMensagemAutomaticamente = p.MostrarTempoRestante = true;
        p.TempoFinalizacaoAutomatica = 90000;
        GOryUtilsDialogs->ConfirmacaoCustomizada(p);
    }},
    {"andamento", [] {
        const auto andamento = GOryUtilsDialogs->MostrarAndamento({.Titulo = u"Cópia de segurança"});
        while (andamento->Atualizar(42, u"Copiando /dados/notas fiscais/2026/11/saida-000123.xml")) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }},
    {"pedido-cpf", [] {
        std::u16string cpf = u"52998224725";
        GOryUtilsDialogs->PedirTexto({.Titulo = u"Cliente", .Pergunta = u"CPF do titular:", .Tipo = ttCPF}, cpf);
    }},
    {"pedido-senha", [] {
        std::u16string senha = u"segredo";
        GOryUtilsDialogs->PedirTexto({.Titulo = u"Acesso", .Pergunta = u"Senha do administrador:", .Senha = true}, senha);
    }},
    {"pedido-linhas", [] {
        std::u16string texto = u"Entregar pela manhã.\r\nPortão lateral, falar com São João & Filhos.";
        GOryUtilsDialogs->PedirLinhas({.Titulo = u"Nota", .Pergunta = u"Informações complementares:"}, texto);
    }},
    {"pedido-escolha", [] {
        std::vector<std::int32_t> escolhidos{2};
        GOryUtilsDialogs->PedirEscolha({.Titulo = u"Transporte", .Pergunta = u"Que transportadora leva a carga?", .Itens = {u"Ágil Cargas Ltda.", u"Expresso São Paulo", u"Rápido & Certo Transportes Rodoviários", u"Veloz"}}, escolhidos);
    }},
    {"pedido-varios", [] {
        std::vector<std::int32_t> escolhidos{0, 2};
        GOryUtilsDialogs->PedirEscolha({.Titulo = u"Filiais", .Pergunta = u"Que filiais entram no relatório?", .Itens = {u"Matriz", u"Filial 2 - Bauru", u"Filial 3 - Santos", u"Filial 4 - Marília", u"Filial 5 - Araçatuba"}, .Varios = true}, escolhidos);
    }},
    {"pergunta", [] { GOryUtilsDialogs->InputBox(u"Cadastro", u"Informe o número da inscrição:", u"São Paulo"); }},
};
// clang-format on

}  // namespace

int main(int AQuantidade, char** AArgumentos) {
    // The pictures are the same whatever the machine's locale.
    DefinirFormatSettings(BuscarFormatosBrasileiros());
    for (const TTela& tela : CTelas) {
        if (AQuantidade < 2) {
            std::puts(tela.Nome);
        } else if (std::strcmp(tela.Nome, AArgumentos[1]) == 0) {
            tela.Mostrar();
            return 0;
        }
    }
    return AQuantidade < 2 ? 0 : 2;
}
