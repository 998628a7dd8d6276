#include "mensagem/Entradas.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "Opcoes.hpp"
#include "mensagem/Resposta.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

using namespace OryUtils;

struct TNomeDeTexto {
    std::string_view Nome;
    TTipoTexto Tipo;
};
constexpr std::array CTextos{
    TNomeDeTexto{"inteiro", ttInteiro},
    TNomeDeTexto{"numero", ttNumero},
    TNomeDeTexto{"data", ttData},
    TNomeDeTexto{"hora", ttHora},
    TNomeDeTexto{"data-hora", ttDataHora},
    TNomeDeTexto{"cpf", ttCPF},
    TNomeDeTexto{"cnpj", ttCNPJ},
    TNomeDeTexto{"cpf-cnpj", ttCpfCnpj},
    TNomeDeTexto{"cep", ttCEP},
    TNomeDeTexto{"fone", ttFone},
    TNomeDeTexto{"pis", ttPIS},
    TNomeDeTexto{"cei", ttCEI},
    TNomeDeTexto{"cnh", ttCNH},
    TNomeDeTexto{"email", ttEmail},
};

TTipoTexto BuscarTipo(const std::string& ANome) {
    if (ANome.empty()) return ttLivre;
    const auto achado = std::ranges::find(CTextos, ANome, &TNomeDeTexto::Nome);
    if (achado == CTextos.end()) throw EFalha("--entrada não conhece " + ANome + "; veja ory mensagem --ajuda");
    return achado->Tipo;
}

void EscreverLinhas(TAmbiente& AAmbiente, std::u16string_view ATexto) {
    while (true) {
        const std::size_t fim = ATexto.find(u"\r\n");
        EscreverLinha(AAmbiente, ATexto.substr(0, fim));
        if (fim == ATexto.npos) return;
        ATexto.remove_prefix(fim + 2);
    }
}

bool PedirLinhas(const TPedidoDeEntrada& APedido, const std::u16string& ATitulo, const std::u16string& APergunta,
                 const std::string& AValor, TAmbiente& AAmbiente) {
    std::u16string valor = DeUtf8(AValor);
    if (!GOryUtilsDialogs->PedirLinhas({.Titulo = ATitulo, .Pergunta = APergunta, .Obrigatorio = APedido.Obrigatorio},
                                       valor))
        return false;
    EscreverLinhas(AAmbiente, valor);
    return true;
}

bool PedirItens(const TPedidoDeEntrada& APedido, const std::u16string& ATitulo, const std::u16string& APergunta,
                const std::string& AValor, bool AIndices, TAmbiente& AAmbiente) {
    TOryUtilsDialogsPedidoEscolhaIOP parametros{
        .Titulo = ATitulo, .Pergunta = APergunta, .Varios = APedido.Varios, .Obrigatorio = APedido.Obrigatorio};
    for (const std::string& item : APedido.Lista) parametros.Itens.push_back(DeUtf8(item));
    std::vector<std::int32_t> escolhidos;
    if (!AValor.empty()) {
        const auto achado = std::ranges::find(APedido.Lista, AValor);
        if (achado == APedido.Lista.end()) throw EFalha("--valor não é um item de --lista: " + AValor);
        escolhidos.push_back(static_cast<std::int32_t>(achado - APedido.Lista.begin()));
    }
    if (!GOryUtilsDialogs->PedirEscolha(parametros, escolhidos)) return false;
    for (const std::int32_t i : escolhidos)
        EscreverLinha(AAmbiente,
                      AIndices ? DeUtf8(std::to_string(i + 1)) : parametros.Itens[static_cast<std::size_t>(i)]);
    return true;
}

}  // namespace

std::string_view TPedidoDeEntrada::BuscarOpcao() const {
    if (!Lista.empty()) return "--lista";
    if (Linhas) return "--linhas";
    if (!Tipo.empty()) return "--entrada";
    if (!Mascara.empty()) return "--mascara";
    return Senha ? "--senha" : "";
}

void DescreverEntradas(TOpcoes AComando, TPedidoDeEntrada& APedido) {
    std::string nomes;
    for (const auto& texto : CTextos) nomes += (nomes.empty() ? "" : ", ") + std::string(texto.Nome);
    AComando.Valor("--entrada", APedido.Tipo, "em vez de botões pergunta um texto que deve ser:\n" + nomes);
    AComando.Valor("--mascara", APedido.Mascara,
                   "pergunta um texto nesta máscara: \"000.000;0;_\" (0 dígito, L letra, A os\ndois, 9 l a opcionais; "
                   "veja docs/campos.md)");
    AComando.Marca("--senha", APedido.Senha, "pergunta um texto sem mostrar o que é digitado");
    AComando.Marca("--linhas", APedido.Linhas, "pergunta um texto de várias linhas");
    AComando
        .Valor("--lista", APedido.Lista, "um item de uma lista a escolher, que se acha digitando; repita para cada um")
        .SemMaisValores();
    AComando.Marca("--varios", APedido.Varios, "com --lista escolhe mais de um item");
    AComando.Marca("--obrigatorio", APedido.Obrigatorio, "a pergunta não aceita uma resposta vazia");
}

void ConferirEntrada(const TPedidoDeEntrada& APedido) {
    const bool texto = !APedido.Tipo.empty() || !APedido.Mascara.empty() || APedido.Senha;
    if (texto + APedido.Linhas + !APedido.Lista.empty() > 1)
        throw EFalha("--linhas e --lista não combinam entre si nem com --entrada, --mascara e --senha");
    if (!APedido.Tipo.empty() && !APedido.Mascara.empty()) throw EFalha("só um de --entrada e --mascara");
    if (APedido.Varios && APedido.Lista.empty()) throw EFalha("--varios é de --lista");
}

bool PedirEntrada(const TPedidoDeEntrada& APedido, const std::string& ATitulo, std::u16string_view APergunta,
                  const std::string& AValor, bool AIndices, TAmbiente& AAmbiente) {
    const std::u16string titulo = DeUtf8(ATitulo), pergunta(APergunta);
    if (APedido.Linhas) return PedirLinhas(APedido, titulo, pergunta, AValor, AAmbiente);
    if (!APedido.Lista.empty()) return PedirItens(APedido, titulo, pergunta, AValor, AIndices, AAmbiente);
    std::u16string valor = DeUtf8(AValor);
    try {
        if (!GOryUtilsDialogs->PedirTexto({.Titulo = titulo,
                                           .Pergunta = pergunta,
                                           .Tipo = BuscarTipo(APedido.Tipo),
                                           .Mascara = DeUtf8(APedido.Mascara),
                                           .Senha = APedido.Senha,
                                           .Obrigatorio = APedido.Obrigatorio},
                                          valor))
            return false;
    } catch (const EConvertError& erro) {
        throw EFalha("--mascara: " + ParaUtf8(erro.GetMensagem()));
    }
    EscreverLinha(AAmbiente, valor);
    return true;
}

}  // namespace Ory
