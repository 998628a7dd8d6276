#include "documento/Documento.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"

#include "Opcoes.hpp"
#include "Tabela.hpp"
#include "TextoNaTela.hpp"
#include "operations/Json.hpp"

#include <algorithm>
#include <charconv>
#include <random>

namespace Ory {
namespace {

using OryUtils::DeUtf8;
using OryUtils::ParaUtf8;
using D = OryUtils::TOryUtilsDocumentos;

constexpr std::size_t CMaiorMostrado = 600;

struct TLido {
    std::u16string Tipo;
    std::u16string Numero;
    std::u16string Uf;
};

bool EhTipo(std::u16string_view ANome) {
    const auto tipos = D::BuscarTiposDocumento();
    return std::ranges::find(tipos, ANome) != tipos.end();
}

std::string Mostrar(std::u16string_view ATexto) { return ParaATela(ATexto, CMaiorMostrado); }

std::string DescreverNumero(const TLido& ALido) {
    const auto motivo = D::BuscarMotivoRecusa(ALido.Tipo, ALido.Numero, ALido.Uf);
    std::vector<std::vector<std::string>> linhas{
        {"Documento", ParaUtf8(D::BuscarDescricaoDocumento(ALido.Tipo).Titulo) + " (" + ParaUtf8(ALido.Tipo) + ")"},
        {"Válido", motivo == OryUtils::mrNenhum ? "sim" : "não"}};
    if (motivo != OryUtils::mrNenhum) {
        linhas.push_back({"Motivo", Mostrar(D::BuscarTextoMotivoRecusa(ALido.Tipo, ALido.Numero, ALido.Uf))});
        return EscreverTabela(linhas, 2);
    }
    linhas.push_back({"Escrito", Mostrar(D::FormatarDocumento(ALido.Tipo, ALido.Numero, ALido.Uf))});
    linhas.push_back({"Guardado", Mostrar(D::LimparDocumento(ALido.Tipo, ALido.Numero, ALido.Uf))});
    for (const auto& fato : D::InterpretarDocumento(ALido.Tipo, ALido.Numero))
        linhas.push_back({Mostrar(fato.Nome), Mostrar(fato.Texto)});
    return EscreverTabela(linhas, 2);
}

TJson DescreverEmJson(const TLido& ALido) {
    const auto motivo = D::BuscarTextoMotivoRecusa(ALido.Tipo, ALido.Numero, ALido.Uf);
    TJson fatos = TJson::array();
    for (const auto& fato : D::InterpretarDocumento(ALido.Tipo, ALido.Numero))
        fatos.push_back({{"nome", ParaUtf8(fato.Nome)}, {"texto", ParaUtf8(fato.Texto)}});
    return {{"tipo", ParaUtf8(ALido.Tipo)},
            {"valido", motivo.empty()},
            {"motivo", ParaUtf8(motivo)},
            {"escrito", ParaUtf8(D::FormatarDocumento(ALido.Tipo, ALido.Numero, ALido.Uf))},
            {"guardado", ParaUtf8(D::LimparDocumento(ALido.Tipo, ALido.Numero, ALido.Uf))},
            {"fatos", fatos}};
}

int MostrarUm(const TLido& ALido, bool AJson, TAmbiente& AAmbiente) {
    AAmbiente.Saida.Escrever(AJson ? TJson::array({DescreverEmJson(ALido)}).dump() + "\n" : DescreverNumero(ALido));
    return D::ValidouDocumento(ALido.Tipo, ALido.Numero, ALido.Uf) ? stTudoCerto : stInvalido;
}

// The kinds that a number is valid as, and those of which only the check digit is wrong.
int MostrarPossiveis(TLido ALido, bool AJson, TAmbiente& AAmbiente) {
    TJson validos = TJson::array();
    std::string texto, quase;
    for (const std::u16string& tipo : D::BuscarTiposDocumento()) {
        ALido.Tipo = tipo;
        const auto motivo = D::BuscarMotivoRecusa(tipo, ALido.Numero, ALido.Uf);
        if (motivo == OryUtils::mrNenhum) {
            validos.push_back(DescreverEmJson(ALido));
            texto += (texto.empty() ? "" : "\n") + DescreverNumero(ALido);
        } else if (motivo == OryUtils::mrDigito || motivo == OryUtils::mrRepetido) {
            quase +=
                "  " + ParaUtf8(tipo) + ": " + Mostrar(D::BuscarTextoMotivoRecusa(tipo, ALido.Numero, ALido.Uf)) + "\n";
        }
    }
    if (AJson)
        AAmbiente.Saida.Escrever(validos.dump() + "\n");
    else if (!texto.empty())
        AAmbiente.Saida.Escrever(texto);
    else
        AAmbiente.Saida.Escrever("Não é válido como nenhum documento conhecido.\n" + quase);
    return validos.empty() ? stInvalido : stTudoCerto;
}

int MostrarTipo(std::u16string_view ATipo, TAmbiente& AAmbiente) {
    const auto d = D::BuscarDescricaoDocumento(ATipo);
    AAmbiente.Saida.Escrever(EscreverTabela({{"Documento", ParaUtf8(d.Titulo)},
                                             {"Forma", ParaUtf8(d.Forma)},
                                             {"Contexto", d.Contexto.empty() ? "-" : ParaUtf8(d.Contexto)},
                                             {"Regra", ParaUtf8(d.Regra)},
                                             {"Fonte", ParaUtf8(d.Fonte)},
                                             {"Exemplo", ParaUtf8(d.Mascara)}},
                                            2));
    return stTudoCerto;
}

int ListarTipos(TAmbiente& AAmbiente) {
    std::vector<std::vector<std::string>> linhas{{"tipo", "documento", "forma"}};
    for (const std::u16string& tipo : D::BuscarTiposDocumento()) {
        const auto d = D::BuscarDescricaoDocumento(tipo);
        linhas.push_back({ParaUtf8(tipo), ParaUtf8(d.Titulo), ParaUtf8(d.Forma)});
    }
    AAmbiente.Saida.Escrever(EscreverTabela(linhas, 3));
    return stTudoCerto;
}

std::int64_t LerSemente(const std::string& ATexto) {
    if (ATexto.empty()) return static_cast<std::int64_t>(std::random_device{}());
    std::int64_t semente = 0;
    const auto lido = std::from_chars(ATexto.data(), ATexto.data() + ATexto.size(), semente);
    if (lido.ec != std::errc() || lido.ptr != ATexto.data() + ATexto.size())
        throw EFalha("--semente espera um inteiro, veio " + ATexto);
    return semente;
}

}  // namespace

void DescreverDocumento(TOpcoes AComando, TPedidoDeDocumento& APedido) {
    AComando.Valor("TIPO NUMERO", APedido.Textos,
                   "o número, com o tipo na frente; só o número: o que pode ser; só o tipo: sua regra");
    AComando.Valor("--uf", APedido.Uf, "a UF: a inscrição estadual precisa, o CEP aceita");
    AComando.Marca("--json", APedido.Json, "em JSON");
    AComando.Rodape(
        "Sem nada, lista os tipos.\n"
        "Saída do programa: 0 válido, 1 não é válido, 2 chamada errada.\n\n"
        "Exemplos:\n"
        "  ory documento cnpj 12.ABC.345/01DE-35\n"
        "  ory documento ie 77.918.780-6 --uf PA\n"
        "  ory documento 34191511095949144684137774366332500000004893952");
}

int MostrarDocumento(const TPedidoDeDocumento& APedido, TAmbiente& AAmbiente) {
    if (APedido.Textos.empty()) return ListarTipos(AAmbiente);
    const std::u16string primeiro = DeUtf8(APedido.Textos[0]);
    const std::u16string uf = DeUtf8(APedido.Uf);
    if (APedido.Textos.size() > 2)
        throw EFalha("um número só, entre aspas se tiver brancos; veja ory documento --ajuda");
    if (APedido.Textos.size() == 2)
        return MostrarUm({primeiro, DeUtf8(APedido.Textos[1]), uf}, APedido.Json, AAmbiente);
    if (EhTipo(primeiro)) return MostrarTipo(primeiro, AAmbiente);
    return MostrarPossiveis({{}, primeiro, uf}, APedido.Json, AAmbiente);
}

void DescreverGeracao(TOpcoes AComando, TPedidoDeGeracao& APedido) {
    AComando.Valor("TIPO", APedido.Tipo, "um dos tipos de ory documento").Obrigatoria();
    AComando.Valor("--quantidade", APedido.Quantidade, "quantos números (padrão: 1)");
    AComando.Valor("--uf", APedido.Uf, "a UF da inscrição estadual ou do CEP");
    AComando.Valor("--semente", APedido.Semente,
                   "um inteiro: a mesma semente gera os mesmos números em qualquer máquina");
    AComando.Marca("--com-mascara", APedido.ComMascara, "como as pessoas escrevem");
    AComando.Rodape(
        "Números inventados, para testes: podem ser de alguém.\n"
        "Saída do programa: 0 certo, 2 chamada errada.\n\n"
        "Exemplos:\n"
        "  ory gerar cpf\n"
        "  ory gerar ie --uf SP --quantidade 10 --com-mascara --semente 7");
}

int GerarNumeros(const TPedidoDeGeracao& APedido, TAmbiente& AAmbiente) {
    constexpr std::size_t CBloco = 1 << 16;
    const std::u16string tipo = DeUtf8(APedido.Tipo), uf = DeUtf8(APedido.Uf);
    const std::int64_t semente = LerSemente(APedido.Semente);
    if (D::GerarDocumento(tipo, semente, uf).empty())
        throw EFalha(APedido.Uf.empty() ? APedido.Tipo + " pede --uf" : "não há a UF " + APedido.Uf);
    std::string saida;
    for (std::size_t i = 0; i < APedido.Quantidade; ++i) {
        // Wraps around at the end of the integers.
        const auto esta = static_cast<std::int64_t>(static_cast<std::uint64_t>(semente) + i);
        const std::u16string numero = D::GerarDocumento(tipo, esta, uf);
        saida += ParaUtf8(APedido.ComMascara ? D::FormatarDocumento(tipo, numero, uf) : numero) + "\n";
        if (saida.size() < CBloco && i + 1 < APedido.Quantidade) continue;
        AAmbiente.Saida.Escrever(saida);
        saida.clear();
    }
    return stTudoCerto;
}

}  // namespace Ory
