// Lists, arrays and delimited text.
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using TLista = std::vector<std::u16string>;

constexpr std::u16string_view CPrefixoDeParametro = u"-";

std::u16string Juntar(const TLista& AItens, std::u16string_view ADelimitador) {
    std::u16string resultado;
    for (const std::u16string& item : AItens) {
        if (&item != &AItens.front()) resultado += ADelimitador;
        resultado += item;
    }
    return resultado;
}

TLista Dividir(std::u16string_view ATexto, std::u16string_view ADelimitador) {
    TLista lista;
    Interno::TOcorrencias delimitadores(ATexto, ADelimitador);
    for (std::size_t inicio = 0; inicio < ATexto.size();) {
        CosturaInterface().ProcessarMensagens();
        // Only the first character of the delimiter is consumed, so that the next one may overlap it.
        const std::size_t fim = std::min(delimitadores.Proxima(), ATexto.size());
        lista.emplace_back(Aparar(ATexto.substr(inicio, fim - inicio)));
        inicio = fim + 1;
    }
    return lista;
}

void MostrarFalhaDaDivisao(std::u16string_view AMensagem) {
    CosturaInterface().Erro(
        std::u16string(u"Erro de execução no método \"ConverterTextoComDelimitadorParaStringList\".\r\nErro ocorrido: ")
            .append(AMensagem));
}

void AcrescentarParametro(TLista& ALista, std::u16string_view AParametro) {
    if (const std::u16string_view aparado = Aparar(AParametro); !aparado.empty()) ALista.emplace_back(aparado);
}

TLista DividirParametros(std::u16string_view ATexto) {
    enum TAspas { aspFora, aspAbertas, aspFechadas };
    TLista lista;
    std::u16string parametro;
    TAspas aspas = aspFora;
    for (const char16_t c : ATexto) {
        if (c == u'"') aspas = aspas == aspFora ? aspAbertas : aspFechadas;
        parametro += c;
        if (aspas == aspFechadas)
            std::erase(parametro, u'"');
        else if (aspas == aspAbertas || !EhBranco(c))
            continue;
        AcrescentarParametro(lista, parametro);
        parametro.clear();
        aspas = aspFora;
    }
    AcrescentarParametro(lista, parametro);
    return lista;
}

}  // namespace

std::u16string TOryUtilsStrings::ConverterStringListParaTextoComDelimitador(
    const std::vector<std::u16string>* AStringList, std::u16string_view ADelimitador) {
    if (!AStringList) throw Exception(u"Argumento <AStringList> não está instanciado.");
    return Juntar(*AStringList, ADelimitador);
}

std::optional<std::vector<std::u16string>> TOryUtilsStrings::ConverterTextoComDelimitadorParaStringList(
    std::u16string_view ATexto, std::u16string_view ADelimitador) {
    try {
        return Dividir(ATexto, ADelimitador);
    } catch (...) {
        MostrarFalhaDaDivisao(BuscarMensagemDaExcecaoAtual());
    }
    return std::nullopt;
}

std::vector<std::u16string> TOryUtilsStrings::ConverterTextoComDelimitadorParaVetorDeStrings(
    std::u16string_view ATexto, std::u16string_view ADelimitador) {
    return ConverterTextoComDelimitadorParaStringList(ATexto, ADelimitador).value_or(TLista());
}

std::vector<std::u16string> TOryUtilsStrings::ConverterStringListParaVetorDeStrings(
    const std::vector<std::u16string>& AStringList) {
    return AStringList;
}

std::vector<std::u16string> TOryUtilsStrings::ConverterVetorDeStringsParaStringList(
    const std::vector<std::u16string>& AVetor) {
    return AVetor;
}

std::u16string TOryUtilsStrings::ConverterVetorDeStringsParaTextoComDelimitador(
    const std::vector<std::u16string>& AVetor, std::u16string_view ADelimitador) {
    return Juntar(AVetor, ADelimitador);
}

std::vector<std::u16string> TOryUtilsStrings::StringToStringDynArray(const std::vector<std::u16string>& AVetor) {
    return AVetor;
}

std::optional<std::vector<std::u16string>> TOryUtilsStrings::ConverterTextoParaListaDeParametros(
    std::u16string_view ATexto) {
    try {
        return DividirParametros(ATexto);
    } catch (...) {
        return std::nullopt;
    }
}

std::u16string TOryUtilsStrings::ConverterListaDeParametrosParaTexto(const std::vector<std::u16string>& ALista) {
    std::u16string resultado;
    bool anteriorEhParametro = false;
    for (const std::u16string& item : ALista) {
        const bool ehParametro = TextoEhParametro(item, CPrefixoDeParametro);
        const std::u16string_view aspas = !ehParametro && anteriorEhParametro ? u"\"" : u"";
        resultado.append(aspas).append(item).append(aspas) += u' ';
        anteriorEhParametro = ehParametro;
    }
    return resultado;
}

}  // namespace OryUtils
