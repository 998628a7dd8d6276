#include "operations/Conversao.hpp"

#include "oryutils/characters/Ascii.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Ory {
namespace {

/// The invariant formats: a decimal point, whatever the process uses.
const OryUtils::TFormatSettings& FormatosDoProtocolo() {
    static const OryUtils::TFormatSettings formatos{};
    return formatos;
}

std::string DescreverValor(const TJson& AValor) {
    constexpr std::size_t CMaior = 60;
    switch (AValor.type()) {
        case TJson::value_t::null:
            return "nulo";
        case TJson::value_t::boolean:
            return AValor.get<bool>() ? "lógico true" : "lógico false";
        case TJson::value_t::number_integer:
            return "número " + std::to_string(AValor.get<std::int64_t>());
        case TJson::value_t::number_unsigned:
            return "número " + std::to_string(AValor.get<std::uint64_t>());
        case TJson::value_t::number_float:
            return "número " +
                   OryUtils::ParaUtf8(OryUtils::ExtendedParaTexto(AValor.get<Extended>(), FormatosDoProtocolo()));
        case TJson::value_t::array:
            return "lista";
        case TJson::value_t::object:
            return "objeto";
        default:
            break;
    }
    const std::u16string texto = OryUtils::DeUtf8(AValor.get_ref<const std::string&>());
    if (texto.size() <= CMaior) return "texto \"" + OryUtils::ParaUtf8(texto) + "\"";
    return "texto \"" + OryUtils::ParaUtf8(std::u16string_view(texto).substr(0, CMaior)) + "...\"";
}

/// Reads exactly AQuantidade digits from the front of ATexto.
std::optional<int> LerDigitos(std::string_view& ATexto, std::size_t AQuantidade) {
    if (ATexto.size() < AQuantidade) return {};
    int valor = 0;
    for (std::size_t i = 0; i < AQuantidade; ++i) {
        if (ATexto[i] < '0' || ATexto[i] > '9') return {};
        valor = valor * 10 + (ATexto[i] - '0');
    }
    ATexto.remove_prefix(AQuantidade);
    return valor;
}

bool LerSinal(std::string_view& ATexto, char ASinal) {
    if (ATexto.empty() || ATexto.front() != ASinal) return false;
    ATexto.remove_prefix(1);
    return true;
}

/// A fraction of a second of any length, cut to milliseconds; none when there are no digits or something follows.
std::optional<int> LerFracao(std::string_view ATexto) {
    if (ATexto.empty()) return {};
    int mili = 0;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        if (ATexto[i] < '0' || ATexto[i] > '9') return {};
        if (i < 3) mili = mili * 10 + (ATexto[i] - '0');
    }
    for (std::size_t i = ATexto.size(); i < 3; ++i) mili *= 10;
    return mili;
}

std::optional<TDateTime> LerDataHoraIso(std::string_view ATexto) {
    const auto ano = LerDigitos(ATexto, 4);
    if (!ano || !LerSinal(ATexto, '-')) return {};
    const auto mes = LerDigitos(ATexto, 2);
    if (!mes || !LerSinal(ATexto, '-')) return {};
    const auto dia = LerDigitos(ATexto, 2);
    if (!dia) return {};
    const auto data = OryUtils::TentarCodificarData(*ano, *mes, *dia);
    if (!data || ATexto.empty()) return data;

    if (!LerSinal(ATexto, 'T') && !LerSinal(ATexto, ' ')) return {};
    const auto hora = LerDigitos(ATexto, 2);
    if (!hora || !LerSinal(ATexto, ':')) return {};
    const auto minuto = LerDigitos(ATexto, 2);
    if (!minuto) return {};
    int segundo = 0;
    int mili = 0;
    if (!ATexto.empty()) {
        if (!LerSinal(ATexto, ':')) return {};
        const auto lido = LerDigitos(ATexto, 2);
        if (!lido) return {};
        segundo = *lido;
        if (!ATexto.empty()) {
            if (!LerSinal(ATexto, '.') && !LerSinal(ATexto, ',')) return {};
            const auto fracao = LerFracao(ATexto);
            if (!fracao) return {};
            mili = *fracao;
        }
    }
    const auto tempo = OryUtils::TentarCodificarHora(*hora, *minuto, segundo, mili);
    if (!tempo) return {};
    return OryUtils::JuntarDataHora(*data, *tempo);
}

void EscreverNumero(std::string& ASaida, int AValor, int ADigitos) {
    const std::string texto = std::to_string(AValor);
    for (int i = static_cast<int>(texto.size()); i < ADigitos; ++i) ASaida += '0';
    ASaida += texto;
}

}  // namespace

void RecusarArgumento(std::string_view AEsperado, const TJson& AVeio) {
    throw EArgumento("esperava " + std::string(AEsperado) + ", veio " + DescreverValor(AVeio));
}

std::u16string LerTexto(const TJson& AValor) {
    if (!AValor.is_string()) RecusarArgumento("texto", AValor);
    return OryUtils::DeUtf8(AValor.get_ref<const std::string&>());
}

char16_t LerCaractere(const TJson& AValor) {
    constexpr std::string_view CEsperado = "caractere (um texto de um caractere)";
    if (!AValor.is_string()) RecusarArgumento(CEsperado, AValor);
    const std::u16string texto = LerTexto(AValor);
    if (texto.size() != 1) RecusarArgumento(CEsperado, AValor);
    return texto.front();
}

std::u16string LerCaracteres(const TJson& AValor) {
    if (AValor.is_string()) return LerTexto(AValor);
    if (!AValor.is_array()) RecusarArgumento("caracteres (um texto ou uma lista de caracteres)", AValor);
    std::u16string resultado;
    for (const TJson& item : AValor) resultado += LerCaractere(item);
    return resultado;
}

bool LerLogico(const TJson& AValor) {
    if (!AValor.is_boolean()) RecusarArgumento("lógico (true ou false)", AValor);
    return AValor.get<bool>();
}

std::int64_t LerInteiro(const TJson& AValor, std::string_view ATipo, std::int64_t AMenor, std::int64_t AMaior) {
    const auto recusar = [&] {
        RecusarArgumento(std::string(ATipo) + " (de " + std::to_string(AMenor) + " a " + std::to_string(AMaior) + ")",
                         AValor);
    };
    if (!AValor.is_number_integer()) recusar();
    if (AValor.is_number_unsigned() && AValor.get<std::uint64_t>() > static_cast<std::uint64_t>(INT64_MAX)) recusar();
    const auto valor = AValor.get<std::int64_t>();
    if (valor < AMenor || valor > AMaior) recusar();
    return valor;
}

std::int64_t LerNomeDeValor(const TJson& AValor, std::string_view ATipo, std::span<const TValorDeEnumeracao> AValores) {
    const auto& nome = AValor.get_ref<const std::string&>();
    const auto maiuscula = [](char c) { return OryUtils::Interno::MaiusculaAscii(c); };
    for (const TValorDeEnumeracao& valor : AValores)
        if (std::ranges::equal(nome, valor.Nome, {}, maiuscula, maiuscula)) return valor.Valor;
    std::string nomes;
    for (const TValorDeEnumeracao& valor : AValores) nomes += (nomes.empty() ? "" : ", ") + std::string(valor.Nome);
    RecusarArgumento(std::string(ATipo) + " (um número, ou " + nomes + ")", AValor);
}

Extended LerDecimal(const TJson& AValor) {
    if (AValor.is_number()) return AValor.get<Extended>();
    if (AValor.is_string()) {
        const auto valor = OryUtils::TentarTextoParaExtended(LerTexto(AValor), FormatosDoProtocolo());
        if (valor) return *valor;
    }
    RecusarArgumento("decimal (\"1234.56\")", AValor);
}

TDateTime LerDataHora(const TJson& AValor) {
    if (AValor.is_string()) {
        const auto valor = LerDataHoraIso(AValor.get_ref<const std::string&>());
        if (valor) return *valor;
    }
    RecusarArgumento("data-hora (\"AAAA-MM-DDTHH:MM:SS\")", AValor);
}

TListaDeTextos LerLista(const TJson& AValor, std::string_view ATipo) {
    if (!AValor.is_array()) RecusarArgumento(ATipo, AValor);
    TListaDeTextos resultado;
    resultado.reserve(AValor.size());
    for (const TJson& item : AValor) resultado.push_back(LerTexto(item));
    return resultado;
}

namespace {

std::vector<Variant> LerItens(const TJson& AValor, int ANivel);

Variant LerVariante(const TJson& AValor, int ANivel) {
    switch (AValor.type()) {
        case TJson::value_t::null:
            return OryUtils::TNulo{};
        case TJson::value_t::boolean:
            return AValor.get<bool>();
        case TJson::value_t::number_integer:
            return AValor.get<std::int64_t>();
        case TJson::value_t::number_unsigned: {
            const auto valor = AValor.get<std::uint64_t>();
            if (valor > static_cast<std::uint64_t>(INT64_MAX)) return static_cast<Extended>(valor);
            return static_cast<std::int64_t>(valor);
        }
        case TJson::value_t::number_float:
            return AValor.get<Extended>();
        case TJson::value_t::string:
            return LerTexto(AValor);
        case TJson::value_t::array:
            return LerItens(AValor, ANivel + 1);
        default:
            RecusarArgumento("lógico, número, texto, nulo ou lista", AValor);
    }
}

std::vector<Variant> LerItens(const TJson& AValor, int ANivel) {
    if (ANivel > OryUtils::TVetorDeVariantes::CMaiorNivel) throw EArgumento("lista com níveis demais");
    std::vector<Variant> itens;
    itens.reserve(AValor.size());
    for (const TJson& item : AValor) itens.push_back(LerVariante(item, ANivel));
    return itens;
}

}  // namespace

Variant LerVariante(const TJson& AValor) { return LerVariante(AValor, 0); }

void EscreverJson(std::string& ASaida, bool AValor) { ASaida += AValor ? "true" : "false"; }

void EscreverJson(std::string& ASaida, std::int64_t AValor) { ASaida += std::to_string(AValor); }

void EscreverJson(std::string& ASaida, Extended AValor) {
    EscreverTextoJson(ASaida, OryUtils::ExtendedParaTexto(AValor, FormatosDoProtocolo()));
}

void EscreverJson(std::string& ASaida, TDateTime AValor) {
    const OryUtils::TPartesData data = OryUtils::DecodificarData(AValor);
    const OryUtils::TPartesHora hora = OryUtils::DecodificarHora(AValor);
    ASaida += '"';
    EscreverNumero(ASaida, data.Ano, 4);
    ASaida += '-';
    EscreverNumero(ASaida, data.Mes, 2);
    ASaida += '-';
    EscreverNumero(ASaida, data.Dia, 2);
    ASaida += 'T';
    EscreverNumero(ASaida, hora.Hora, 2);
    ASaida += ':';
    EscreverNumero(ASaida, hora.Minuto, 2);
    ASaida += ':';
    EscreverNumero(ASaida, hora.Segundo, 2);
    ASaida += '"';
}

void EscreverJson(std::string& ASaida, const std::u16string& AValor) { EscreverTextoJson(ASaida, AValor); }

void EscreverJson(std::string& ASaida, const TListaDeTextos& AValor) {
    ASaida += '[';
    for (std::size_t i = 0; i < AValor.size(); ++i) {
        if (i) ASaida += ',';
        EscreverTextoJson(ASaida, AValor[i]);
    }
    ASaida += ']';
}

void EscreverJson(std::string& ASaida, const std::vector<int>& AValor) {
    ASaida += '[';
    for (std::size_t i = 0; i < AValor.size(); ++i) {
        if (i) ASaida += ',';
        EscreverJson(ASaida, std::int64_t{AValor[i]});
    }
    ASaida += ']';
}

void EscreverJson(std::string& ASaida, const std::optional<TListaDeTextos>& AValor) {
    if (!AValor) {
        ASaida += "null";
        return;
    }
    EscreverJson(ASaida, *AValor);
}

void EscreverJson(std::string& ASaida, const OryTypes::TResultStatus& AValor) {
    ASaida += R"({"status":)";
    EscreverJson(ASaida, AValor.Status);
    ASaida += R"(,"mensagem":)";
    EscreverJson(ASaida, AValor.Mensagem);
    ASaida += '}';
}

void EscreverJson(std::string& ASaida, const OryUtils::TDescricaoDocumento& AValor) {
    const std::pair<const char*, const std::u16string&> campos[]{
        {"nome", AValor.Nome},   {"titulo", AValor.Titulo},    {"palavras", AValor.Palavras},
        {"forma", AValor.Forma}, {"mascara", AValor.Mascara},  {"regra", AValor.Regra},
        {"fonte", AValor.Fonte}, {"contexto", AValor.Contexto}};
    for (char inicio = '{'; const auto& [nome, valor] : campos) {
        ASaida += std::exchange(inicio, ',');
        ASaida += std::string("\"") + nome + "\":";
        EscreverJson(ASaida, valor);
    }
    ASaida += '}';
}

void EscreverJson(std::string& ASaida, const std::vector<OryUtils::TFatoDocumento>& AValor) {
    ASaida += '[';
    for (const OryUtils::TFatoDocumento& fato : AValor) {
        if (&fato != AValor.data()) ASaida += ',';
        ASaida += R"({"nome":)";
        EscreverJson(ASaida, fato.Nome);
        ASaida += R"(,"texto":)";
        EscreverJson(ASaida, fato.Texto);
        ASaida += '}';
    }
    ASaida += ']';
}

namespace {

struct TEscritorDeVariante {
    std::string& Saida;

    void operator()(OryUtils::TNaoAtribuido) const { Saida += "null"; }
    void operator()(OryUtils::TNulo) const { Saida += "null"; }
    // A JSON number, the shortest that reads back as the same double; JSON has none for what is not finite.
    void operator()(Extended AValor) const {
        const auto valor = static_cast<double>(AValor);
        if (!std::isfinite(valor)) {
            Saida += "null";
            return;
        }
        char texto[32];
        const auto [fim, erro] = std::to_chars(std::begin(texto), std::end(texto), valor);
        const std::string_view escrito(texto, static_cast<std::size_t>(fim - texto));
        Saida += escrito;
        if (escrito.find_first_of(".e") == std::string_view::npos) Saida += ".0";
    }
    void operator()(OryUtils::TMoeda AValor) const {
        EscreverJson(Saida, static_cast<Extended>(AValor.DezMilesimos) / 10000);
    }
    void operator()(const OryUtils::TVetorDeVariantes& AValor) const {
        Saida += '[';
        for (const Variant& item : AValor.GetItens()) {
            if (&item != &AValor.GetItens().front()) Saida += ',';
            EscreverJson(Saida, item);
        }
        Saida += ']';
    }
    template <typename T>
    void operator()(const T& AValor) const {
        EscreverJson(Saida, AValor);
    }
};

}  // namespace

void EscreverJson(std::string& ASaida, const Variant& AValor) {
    std::visit(TEscritorDeVariante{ASaida}, AValor.GetValor());
}

}  // namespace Ory
