#include "mensagem/Mensagem.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "Opcoes.hpp"
#include "mensagem/Andamento.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string_view>

namespace Ory {
namespace {

using namespace OryUtils;

struct TNomeDeTipo {
    std::string_view Nome;
    TMsgDlgType Tipo;
};
constexpr std::array CTipos{
    TNomeDeTipo{"informacao", mtInformation},   TNomeDeTipo{"aviso", mtWarning}, TNomeDeTipo{"erro", mtError},
    TNomeDeTipo{"confirmacao", mtConfirmation}, TNomeDeTipo{"nenhum", mtCustom},
};

struct TNomeDeBotao {
    std::string_view Nome;
    TMsgDlgBtn Tipo;
    TStatusMensagem Status;
};
// Help closes nothing, so a script has no use for it.
constexpr std::array CBotoes{
    TNomeDeBotao{"sim", mbYes, smSim},
    TNomeDeBotao{"nao", mbNo, smNao},
    TNomeDeBotao{"ok", mbOK, smSim},
    TNomeDeBotao{"cancelar", mbCancel, smCancelada},
    TNomeDeBotao{"abortar", mbAbort, smNao},
    TNomeDeBotao{"repetir", mbRetry, smSim},
    TNomeDeBotao{"ignorar", mbIgnore, smSim},
    TNomeDeBotao{"todos", mbAll, smSim},
    TNomeDeBotao{"nao-todos", mbNoToAll, smNao},
    TNomeDeBotao{"sim-todos", mbYesToAll, smSim},
    TNomeDeBotao{"fechar", mbClose, smSim},
};

template <typename TTabela>
const auto& BuscarPorNome(const TTabela& ATabela, std::string_view ANome, std::string_view AOpcao) {
    const auto achado = std::find_if(ATabela.begin(), ATabela.end(), [&](const auto& l) { return l.Nome == ANome; });
    if (achado == ATabela.end())
        throw EFalha(std::string(AOpcao) + " não conhece " + std::string(ANome) + "; veja ory mensagem --ajuda");
    return *achado;
}

template <typename TTabela>
std::string ListarNomes(const TTabela& ATabela) {
    std::string nomes;
    for (const auto& linha : ATabela) nomes += (nomes.empty() ? "" : ", ") + std::string(linha.Nome);
    return nomes;
}

int BuscarResultado(TMsgDlgBtn ATipo) { return CModalResults[static_cast<std::size_t>(ATipo)]; }

std::u16string JuntarLinhas(const std::vector<std::string>& ALinhas) {
    std::u16string texto;
    for (const std::string& linha : ALinhas) texto += (&linha == &ALinhas.front() ? u"" : u"\r\n") + DeUtf8(linha);
    return texto;
}

std::string JuntarTitulo(const std::vector<std::string>& ALinhas) {
    std::string titulo;
    for (const std::string& linha : ALinhas) titulo += (titulo.empty() ? "" : " ") + linha;
    return titulo;
}

/// A text of the caller as a caption: "&" is a letter like any other, not the mark of the one that Alt takes.
std::u16string ComoCaption(std::string_view ATexto) {
    std::u16string caption;
    for (const char16_t c : DeUtf8(ATexto)) caption.append(c == u'&' ? 2 : 1, c);
    return caption;
}

void LerBotoes(const TPedidoDeMensagem& APedido, TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros) {
    std::vector<std::string> pedidos = APedido.Botoes;
    if (pedidos.empty())
        pedidos = AParametros.TipoDialogo == mtConfirmation ? std::vector<std::string>{"sim", "nao"}
                                                            : std::vector<std::string>{"ok"};
    for (const std::string& pedido : pedidos) {
        const std::size_t igual = pedido.find('=');
        const TMsgDlgBtn tipo = BuscarPorNome(CBotoes, pedido.substr(0, igual), "--botao").Tipo;
        if (std::count(AParametros.Botoes.begin(), AParametros.Botoes.end(), tipo) > 0)
            throw EFalha("--botao repete " + pedido.substr(0, igual));
        AParametros.Botoes.push_back(tipo);
        AParametros.CaptionBotoes.push_back(igual == std::string::npos ? CCaptionsBotao[tipo]
                                                                       : ComoCaption(pedido.substr(igual + 1)));
    }
    if (APedido.Padrao.empty()) return;
    const TMsgDlgBtn padrao = BuscarPorNome(CBotoes, APedido.Padrao, "--padrao").Tipo;
    if (std::count(AParametros.Botoes.begin(), AParametros.Botoes.end(), padrao) == 0)
        throw EFalha("--padrao não é um dos botões: " + APedido.Padrao);
    AParametros.BotaoPadrao = BuscarResultado(padrao);
}

TOryUtilsDialogsFormCustomizadoBaseIOP LerParametros(const TPedidoDeMensagem& APedido) {
    TOryUtilsDialogsFormCustomizadoBaseIOP parametros;
    const auto tipo = APedido.Tipo.empty() ? mtInformation : BuscarPorNome(CTipos, APedido.Tipo, "--tipo").Tipo;
    parametros.TipoDialogo = tipo;
    parametros.Titulo = tipo == mtWarning ? TextosDialogos().Buscar(tdAviso) : CCaptionsDialogo[tipo];
    if (!APedido.Titulo.empty()) parametros.Titulo = DeUtf8(APedido.Titulo);
    parametros.Mensagem = JuntarLinhas(APedido.Linhas);
    LerBotoes(APedido, parametros);
    if (APedido.FecharEm > std::numeric_limits<std::int32_t>::max() / 1000)
        throw EFalha("--fechar-em vai até 2147483 segundos");
    parametros.FecharMensagemAutomaticamente = APedido.FecharEm > 0;
    parametros.TempoFinalizacaoAutomatica = static_cast<std::int32_t>(APedido.FecharEm) * 1000;
    parametros.MostrarTempoRestante = APedido.MostrarTempo;
    return parametros;
}

void ConferirPedidos(const TPedidoDeMensagem& APedido, int AVariantes) {
    const int pedidos = APedido.Caminhos.ContarPedidos();
    if (pedidos > 1) throw EFalha("só um de --arquivo, --arquivos, --salvar e --pasta por vez");
    if (pedidos == 1 && (AVariantes > 0 || !APedido.Botoes.empty() || !APedido.Tipo.empty() || APedido.FecharEm > 0))
        throw EFalha("arquivos e pastas não combinam com botões, opções, --tipo, --valor nem --fechar-em");
    if (pedidos == 0 && (!APedido.Caminhos.Filtros.empty() || !APedido.Caminhos.PastaInicial.empty()))
        throw EFalha("--filtro e --pasta-inicial são de --arquivo, --arquivos, --salvar e --pasta");
}

void ConferirCombinacao(const TPedidoDeMensagem& APedido) {
    const int variantes =
        !APedido.Opcoes.empty() + !APedido.Caixa.empty() + !APedido.Detalhe.empty() + (APedido.EhPergunta() ? 1 : 0);
    if (variantes > 1) throw EFalha("só um de --opcao, --caixa, --detalhe e --valor por mensagem");
    ConferirEntrada(APedido.Entrada);
    if (APedido.EhPergunta() && (!APedido.Botoes.empty() || !APedido.Tipo.empty() || APedido.FecharEm > 0)) {
        const std::string opcao(APedido.Entrada.BuscarOpcao());
        throw EFalha((opcao.empty() ? "--valor" : opcao) + " não combina com --botao, --tipo nem --fechar-em");
    }
    ConferirPedidos(APedido, variantes);
    const bool sozinho = variantes + APedido.Caminhos.ContarPedidos() == 0 && APedido.Botoes.empty() &&
                         APedido.Tipo.empty() && APedido.FecharEm == 0 && APedido.Lembranca.Lembrar.empty();
    if (APedido.Andamento && !sozinho) throw EFalha("--andamento só combina com TEXTO, --titulo, --dono e --na-frente");
    if (!APedido.Lembranca.Lembrar.empty() && variantes + APedido.Caminhos.ContarPedidos() > 0)
        throw EFalha("--lembrar não combina com --opcao, --caixa, --detalhe, --valor nem arquivos e pastas");
    if (!APedido.Opcoes.empty() && APedido.OpcaoPadrao > APedido.Opcoes.size())
        throw EFalha("--opcao-padrao vai de 0 a " + std::to_string(APedido.Opcoes.size()));
}

// A message with one button is told without asking, also where nobody can answer.
bool ExigeResposta(const TPedidoDeMensagem& APedido) {
    if (!APedido.Lembranca.Lembrar.empty()) return false;  // a remembered answer needs nobody
    const bool confirma = APedido.Botoes.empty() && APedido.Tipo == "confirmacao";
    return confirma || APedido.Botoes.size() > 1 || APedido.EhPergunta() || APedido.Caminhos.ContarPedidos() > 0 ||
           !APedido.Opcoes.empty() || !APedido.Caixa.empty() || !APedido.Detalhe.empty();
}

// The chosen option, its number from 1 or its text.
std::u16string ResponderOpcao(const TPedidoDeMensagem& APedido, int AIndice) {
    if (APedido.Indice) return DeUtf8(std::to_string(AIndice + 1));
    const auto indice = static_cast<std::size_t>(AIndice);
    return indice < APedido.Opcoes.size() ? DeUtf8(APedido.Opcoes[indice]) : u"";
}

}  // namespace

void DescreverMensagem(TOpcoes AComando, TPedidoDeMensagem& APedido) {
    AComando.Valor("TEXTO", APedido.Linhas, "texto da mensagem; cada argumento é uma linha");
    AComando.Valor("--titulo", APedido.Titulo, "título da janela (padrão: o do tipo)");
    AComando.Valor("--tipo", APedido.Tipo, "ícone e título: " + ListarNomes(CTipos) + " (padrão: informacao)");
    AComando
        .Valor("--botao", APedido.Botoes,
               "nome ou nome=texto; repita para cada botão. Nomes:\n" + ListarNomes(CBotoes) +
                   "\n(padrão: sim e nao na confirmacao, ok nos outros tipos)")
        .SemMaisValores();
    AComando.Valor("--padrao", APedido.Padrao, "nome do botão que recebe o foco");
    AComando.Valor("--opcao", APedido.Opcoes, "uma opção a escolher; repita para cada uma").SemMaisValores();
    AComando.Valor("--opcao-padrao", APedido.OpcaoPadrao, "opção já escolhida, a partir de 1; 0 nenhuma (padrão: 1)");
    AComando.Marca("--indice", APedido.Indice, "responde o número da opção, a partir de 1, em vez do texto");
    AComando.Valor("--caixa", APedido.Caixa, "texto de uma caixa de checagem");
    AComando.Marca("--caixa-abaixo", APedido.CaixaAbaixo, "caixa abaixo dos botões");
    AComando.Valor("--detalhe", APedido.Detalhe, "texto que o botão Mostrar Detalhes abre");
    DescreverLembranca(AComando, APedido.Lembranca);
    AComando.Valor("--fechar-em", APedido.FecharEm, "segundos até fechar sem resposta");
    AComando.Marca("--mostrar-tempo", APedido.MostrarTempo,
                   "conta os segundos no botão padrão; a primeira tecla ou clique para a contagem");
    AComando.Marca("--andamento", APedido.Andamento,
                   "mostra o andamento de um trabalho, lido da entrada: linhas \"42\", \"42 texto\" ou \"texto\",\n"
                   "de 0 a 100; fecha no fim da entrada");
    AComando.Valor("--dono", APedido.Janela.Dona,
                   "número da janela dona da mensagem, de qualquer programa (X11, como em $WINDOWID, e Windows)");
    AComando.Marca("--na-frente", APedido.Janela.NaFrente, "na frente das janelas de todos os programas");
    AComando
        .Valor("--valor", APedido.Valor,
               "em vez de botões pergunta um texto, com este já escrito (pode ser \"\"); com\n--lista, o item já "
               "escolhido")
        .AoLer([&APedido] { APedido.Perguntar = true; });
    DescreverEntradas(AComando, APedido.Entrada);
    DescreverCaminhos(AComando, APedido.Caminhos);
    AComando.Rodape(
        "Na saída: uma linha com o texto do botão escolhido (vazia se a janela foi fechada\n"
        "e não há botão cancelar), e com --opcao mais uma com a opção (vazia, ou 0 com --indice, se nenhuma),\n"
        "com --caixa mais uma com 1 ou 0. Um texto de várias linhas sai em uma só.\n"
        "Com --valor, --entrada, --mascara e --senha: uma linha com o texto digitado; com --linhas e --lista, uma para "
        "cada\nlinha ou item (o número do item com --indice). Nada se foi cancelado. Números de cadastro saem sem\n"
        "pontuação, números como 1234,5 e datas como 31/12/2024.\n"
        "Com --arquivo, --arquivos, --salvar e --pasta: um caminho completo por linha, e nada se foi cancelado.\n"
        "Com --andamento: nada; cancelado, para de ler a entrada.\n\n"
        "Saída do programa: 0 sim, ok, repetir, ignorar, todos, sim-todos ou fechar; 1 nao, abortar ou nao-todos;\n"
        "2 chamada errada; 3 cancelar ou janela fechada; 4 tempo de --fechar-em esgotado;\n"
        "5 não há tela nem terminal para perguntar (nada sai; uma mensagem de um só botão não pergunta).\n\n"
        "Exemplos:\n"
        "  ory mensagem --tipo confirmacao \"Apagar os arquivos antigos?\" --padrao nao && apagar.sh\n"
        "  ory mensagem \"Que filial?\" --opcao Matriz --opcao \"Filial 2\" --botao ok --botao cancelar\n"
        "  ory mensagem \"Número do lote:\" --valor \"\"\n"
        "  cpf=$(ory mensagem \"CPF do cliente:\" --entrada cpf --obrigatorio) || exit\n"
        "  ory mensagem \"Que filiais?\" --lista Matriz --lista \"Filial 2\" --lista \"Filial 3\" --varios\n"
        "  ory mensagem --arquivos \"Notas a enviar\" --filtro \"Notas=*.xml\" --pasta-inicial /notas\n"
        "  copiar.sh | ory mensagem --andamento --titulo Cópia \"Copiando os arquivos\"");
}

int MostrarMensagem(const TPedidoDeMensagem& APedido, TAmbiente& AAmbiente) {
    ConferirCombinacao(APedido);
    if (Esquecer(APedido.Lembranca)) return smSim;
    const TJanelaPedida janela(APedido.Janela);
    if (APedido.Andamento)
        return MostrarAndamento(APedido.Titulo.empty() ? u"Andamento" : DeUtf8(APedido.Titulo),
                                JuntarLinhas(APedido.Linhas), AAmbiente);
    if (ExigeResposta(APedido) && !BuscarToolkit().PodePerguntar()) return RecusarSemQuemResponda(AAmbiente);
    if (APedido.Caminhos.ContarPedidos() > 0)
        return PedirCaminhos(APedido.Caminhos, APedido.Titulo.empty() ? JuntarTitulo(APedido.Linhas) : APedido.Titulo,
                             AAmbiente)
                   ? smSim
                   : smCancelada;
    if (APedido.EhPergunta())
        return PedirEntrada(APedido.Entrada, APedido.Titulo, JuntarLinhas(APedido.Linhas), APedido.Valor,
                            APedido.Indice, AAmbiente)
                   ? smSim
                   : smCancelada;

    const auto base = LerParametros(APedido);
    int resultado = mrNone;
    std::vector<std::u16string> respostas;
    if (!APedido.Opcoes.empty()) {
        TOryUtilsDialogsFormCustomizadoComOpcoesIOP parametros;
        parametros.Assign(base);
        for (const std::string& opcao : APedido.Opcoes) parametros.OpcoesMensagem.push_back(ComoCaption(opcao));
        parametros.OpcaoPadrao = static_cast<int>(APedido.OpcaoPadrao) - 1;
        const auto retorno = GOryUtilsDialogs->ConfirmacaoCustomizadaComOpcoes(parametros);
        resultado = retorno->RetornoMensagem;
        respostas.push_back(ResponderOpcao(APedido, retorno->IndiceOpcao));
    } else if (!APedido.Caixa.empty()) {
        TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP parametros;
        parametros.Assign(base);
        parametros.TextoCaixaChecagem = ComoCaption(APedido.Caixa);
        parametros.PosicaoCaixaChecagem = APedido.CaixaAbaixo ? pccAbaixo : pccAcima;
        const auto retorno = GOryUtilsDialogs->ConfirmacaoCustomizadaComCaixaChecagem(parametros);
        resultado = retorno->RetornoMensagem;
        respostas.push_back(retorno->CaixaChecagem ? u"1" : u"0");
    } else if (!APedido.Lembranca.Lembrar.empty()) {
        const auto retorno = PerguntarOuLembrar(APedido.Lembranca, base);
        if (retorno.FoiMostrada && !BuscarToolkit().PodePerguntar()) return RecusarSemQuemResponda(AAmbiente);
        resultado = retorno.RetornoMensagem;
    } else {
        TOryUtilsDialogsFormCustomizadoComDetalhesIOP parametros;
        parametros.Assign(base);
        parametros.MensagemDetalhe = DeUtf8(APedido.Detalhe);
        resultado = APedido.Detalhe.empty()
                        ? GOryUtilsDialogs->BuscarFormularioConfirmacaoCustomizado(base)->ExecutarModal()
                        : GOryUtilsDialogs->ConfirmacaoCustomizadaComDetalhes(parametros);
    }

    const auto escolhido = std::find_if(base.Botoes.begin(), base.Botoes.end(),
                                        [&](TMsgDlgBtn b) { return BuscarResultado(b) == resultado; });
    TStatusMensagem status = smCancelada;
    std::u16string caption;
    if (escolhido != base.Botoes.end()) {
        caption = RemoverAtalho(base.CaptionBotoes[static_cast<std::size_t>(escolhido - base.Botoes.begin())]);
        status =
            std::find_if(CBotoes.begin(), CBotoes.end(), [&](const auto& b) { return b.Tipo == *escolhido; })->Status;
    }
    if (resultado == mrCancel && GOryUtilsDialogs->GetFechadaPorTempo()) status = smTempoEsgotado;
    // A cancel button, the window's close button and the end of the time give the same result: all print its caption.
    EscreverLinha(AAmbiente, caption);
    for (const auto& resposta : respostas) EscreverLinha(AAmbiente, resposta);
    return status;
}

}  // namespace Ory
