#include "oryutils/fields/Mascara.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/interno/CamposDaMascara.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr bool EhSurrogado(char16_t ACaractere) { return ACaractere >= 0xD800 && ACaractere <= 0xDFFF; }
bool EhLetraComCaixa(char16_t ACaractere) noexcept {
    return EhLetra(ACaractere) || MaiusculaDe(ACaractere) != ACaractere || MinusculaDe(ACaractere) != ACaractere;
}

[[noreturn]] void Recusar(std::u16string_view AMascara, std::u16string_view AMotivo) {
    throw EConvertError(u"'" + std::u16string(AMascara) + u"' não é uma máscara de edição válida: " +
                        std::u16string(AMotivo));
}

}  // namespace

TMascara::TMascara(std::u16string_view AMascara, const TFormatSettings& AFormatos) {
    if (AMascara.empty()) return;
    const Interno::TCampos campos = Interno::Separar(AMascara);
    FGravaLiterais = campos.Literais != u"0";
    if (!campos.Branco.empty()) FBranco = campos.Branco.front();

    const std::u16string_view padrao = campos.Padrao;
    TCaixaLugar caixa = clComoDigitado;
    const auto literal = [&](char16_t ACaractere, bool ASepara = false) {
        if (ACaractere != 0) Incluir({.Separa = ASepara, .Literal = ACaractere});
        FSoSepara = FSoSepara && (ASepara || ACaractere == u' ');
    };
    const auto campo = [&](TTipoLugar ATipo, bool AObrigatorio) {
        Incluir({.Tipo = ATipo, .Caixa = caixa, .Obrigatorio = AObrigatorio});
        ++FCampos;
    };
    for (std::size_t i = 0; i < padrao.size(); ++i) {
        if (FLugares.size() > CMaiorTamanho) break;
        switch (padrao[i]) {
            case u'0':
                campo(tlDigito, true);
                break;
            case u'9':
                campo(tlDigito, false);
                break;
            case u'#':
                campo(tlDigitoOuSinal, false);
                break;
            case u'L':
                campo(tlLetra, true);
                break;
            case u'l':
                campo(tlLetra, false);
                break;
            case u'A':
                campo(tlAlfanumerico, true);
                break;
            case u'a':
                campo(tlAlfanumerico, false);
                break;
            case u'C':
                campo(tlQualquer, true);
                break;
            case u'c':
                campo(tlQualquer, false);
                break;
            case u'_':
                literal(u' ');
                break;
            case u'/':
                literal(AFormatos.DateSeparator, true);
                break;
            case u':':
                literal(AFormatos.TimeSeparator, true);
                break;
            case u'!':
                FADireita = true;
                break;
            case u'>':
                caixa = clMaiuscula;
                break;
            case u'<':
                if (padrao.substr(i, 2) == u"<>") {
                    caixa = clComoDigitado;
                    ++i;
                } else {
                    caixa = clMinuscula;
                }
                break;
            case u'\\':
                if (++i == padrao.size()) Recusar(AMascara, u"termina em \"\\\".");
                literal(padrao[i]);
                break;
            default:
                literal(padrao[i]);
        }
    }
    FSoSepara = FSoSepara && std::ranges::find(FLugares, true, &TLugar::Separa) != FLugares.end();
    if (FSoSepara)
        for (TLugar& lugar : FLugares) lugar.Separa = lugar.Tipo == tlLiteral;
    if (FLugares.size() > CMaiorTamanho) Recusar(AMascara.substr(0, CMaiorTamanho), u"longa demais.");
    if (FCampos == 0) Recusar(AMascara, u"não tem onde digitar.");
    const bool tomado =
        std::ranges::any_of(FLugares, [&](const TLugar& l) { return l.Tipo != tlQualquer && LugarAceita(l, FBranco); });
    if (tomado || Interno::EhControle(FBranco) || EhSurrogado(FBranco))
        Recusar(AMascara, u"o caractere dos lugares vazios não serve.");
}

void TMascara::Incluir(const TLugar& ALugar) { FLugares.push_back(ALugar); }

bool TMascara::LugarAceita(const TLugar& ALugar, char16_t ACaractere) noexcept {
    switch (ALugar.Tipo) {
        case tlLiteral:
            return false;
        case tlDigito:
            return EhDigito(ACaractere);
        case tlDigitoOuSinal:
            return EhDigito(ACaractere) || ACaractere == u'+' || ACaractere == u'-';
        case tlLetra:
            return EhLetraComCaixa(ACaractere);
        case tlAlfanumerico:
            return EhDigito(ACaractere) || EhLetraComCaixa(ACaractere);
        case tlQualquer:
            return !Interno::EhControle(ACaractere) && !EhSurrogado(ACaractere);
    }
    return false;
}

char16_t TMascara::NaCaixa(const TLugar& ALugar, char16_t ACaractere) noexcept {
    if (ALugar.Caixa == clComoDigitado) return ACaractere;
    return ALugar.Caixa == clMaiuscula ? MaiusculaDe(ACaractere) : MinusculaDe(ACaractere);
}

bool TMascara::EhTextoDaMascara(std::u16string_view ATexto) const noexcept {
    const TFalhaMascara falha = Examinar(ATexto).Falha;
    return falha == fmNenhuma || falha == fmIncompleto;
}

TExameMascara TMascara::Examinar(std::u16string_view ATexto) const noexcept {
    if (EstahVazia()) return {};
    if (ATexto.size() != GetTamanho()) return {fmTamanho, std::min(ATexto.size(), GetTamanho())};
    // What has no place in the mask counts before what is still missing.
    TExameMascara incompleto;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const TLugar& lugar = FLugares[i];
        if (lugar.Tipo == tlLiteral) {
            if (ATexto[i] != lugar.Literal) return {fmLiteral, i};
        } else if (EhVazio(ATexto[i])) {
            if (lugar.Obrigatorio && incompleto.Falha == fmNenhuma) incompleto = {fmIncompleto, i};
        } else if (!LugarAceita(lugar, ATexto[i])) {
            return {fmCaractere, i};
        }
    }
    return incompleto;
}

bool TMascara::Aceita(std::u16string_view ATexto) const {
    if (EstahVazia() || Examinar(ATexto).Falha == fmNenhuma) return true;
    const std::u16string edicao = ParaEdicao(ATexto);
    std::u16string valor = RetirarLiterais(edicao);
    std::erase(valor, u' ');
    return IguaisIgnorandoCaixa(valor, ATexto) && Examinar(edicao).Falha == fmNenhuma;
}

std::u16string TMascara::GetTextoVazio() const {
    std::u16string texto;
    texto.reserve(FLugares.size());
    for (const TLugar& lugar : FLugares) texto += lugar.Tipo == tlLiteral ? lugar.Literal : FBranco;
    return texto;
}

/// The characters of AValor in the places, from the left or from the right; without looking at them.
template <bool AInverso>
std::u16string TMascara::Distribuir(std::u16string_view AValor) const {
    std::u16string texto(FLugares.size(), u' ');
    std::size_t usados = 0;
    const auto valorEm = [&](std::size_t i) { return AValor[AInverso ? AValor.size() - 1 - i : i]; };
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const std::size_t posicao = AInverso ? texto.size() - 1 - i : i;
        const TLugar& lugar = FLugares[posicao];
        if (lugar.Tipo == tlLiteral)
            texto[posicao] = lugar.Literal;
        else if (usados < AValor.size())
            texto[posicao] = valorEm(usados++);
    }
    if constexpr (AInverso)
        texto.insert(0, AValor.substr(0, AValor.size() - usados));
    else
        texto.append(AValor.substr(usados));
    return texto;
}

std::u16string TMascara::Exibir(std::u16string_view AValor) const {
    if (EstahVazia()) return std::u16string(AValor);
    // What was stored with literals is shown as it is, also when they are those of another mask.
    const bool cabe = !FGravaLiterais || (FADireita ? CabeNosLugares<true>(AValor) : CabeNosLugares<false>(AValor));
    if (!cabe || (FGravaLiterais && EhTextoDaMascara(AValor))) return std::u16string(AValor);
    return FADireita ? Distribuir<true>(AValor) : Distribuir<false>(AValor);
}

/// Puts ACaractere at APasso or behind, both counted from the end when AInverso; a mark is passed over. The result is
/// where the next one goes; none when ACaractere has no place here.
template <bool AInverso>
std::optional<std::size_t> TMascara::Inserir(std::u16string& ATexto, std::size_t APasso, char16_t ACaractere) const {
    const std::size_t fim = FLugares.size();
    const auto posicaoDe = [&](std::size_t APassoDado) { return AInverso ? fim - 1 - APassoDado : APassoDado; };
    const auto lugarDe = [&](std::size_t APassoDado) -> const TLugar& { return FLugares[posicaoDe(APassoDado)]; };

    std::size_t campo = APasso;
    while (campo < fim && lugarDe(campo).Tipo == tlLiteral) ++campo;
    if (campo < fim && !EhVazio(ACaractere)) {
        const char16_t convertido = NaCaixa(lugarDe(campo), ACaractere);
        if (LugarAceita(lugarDe(campo), convertido)) {
            ATexto[posicaoDe(campo)] = convertido;
            return campo + 1;
        }
    }
    if (!EhMarca(ACaractere)) return std::nullopt;
    // Inside a group of which something is filled: the rest of a day or an hour may stay empty.
    const bool dentro = APasso > 0 && campo == APasso && campo < fim && lugarDe(APasso - 1).Tipo != tlLiteral &&
                        !EhVazio(ATexto[posicaoDe(APasso - 1)]);
    if (!dentro) return APasso;
    while (campo < fim && lugarDe(campo).Tipo != tlLiteral) ++campo;
    const bool salta = campo < fim && lugarDe(campo).Separa && (FSoSepara || lugarDe(campo).Literal == ACaractere);
    // A date has no group left for what comes behind the mark: "2012-03-05" where the day comes first.
    if (!salta && FSoSepara && campo == fim && !EhVazio(ACaractere) && ACaractere > u' ') return std::nullopt;
    return salta ? campo + 1 : APasso;
}

/// A text that people wrote, as the text of an edit: what no place takes is left out.
template <bool AInverso>
std::u16string TMascara::Preencher(std::u16string_view AValor) const {
    std::u16string texto = GetTextoVazio();
    std::size_t passo = 0;
    for (std::size_t i = 0; i < AValor.size() && passo < texto.size(); ++i) {
        const char16_t c = AValor[AInverso ? AValor.size() - 1 - i : i];
        passo = Inserir<AInverso>(texto, passo, c).value_or(passo);
    }
    return texto;
}

bool TMascara::EhMarca(char16_t ACaractere) const noexcept {
    constexpr char16_t CEspacoSemQuebra = 0xA0;
    if (ACaractere <= u' ' || ACaractere == CEspacoSemQuebra || ACaractere == FBranco) return true;
    if (std::u16string_view(u".,-/:()_").find(ACaractere) != std::u16string_view::npos) return true;
    return std::ranges::any_of(FLugares,
                               [&](const TLugar& l) { return l.Tipo == tlLiteral && l.Literal == ACaractere; });
}

std::optional<std::u16string> TMascara::LerConteudo(std::u16string_view ATexto) const {
    std::u16string conteudo;
    for (const char16_t c : ATexto) {
        const bool tomado = std::ranges::any_of(FLugares, [&](const TLugar& l) { return LugarAceita(l, c); });
        if (tomado && !EhVazio(c))
            conteudo += c;
        else if (!EhMarca(c))
            return std::nullopt;
    }
    return conteudo;
}

std::u16string TMascara::GetConteudo(std::u16string_view ATexto, std::size_t APosicao) const {
    std::u16string conteudo = RetirarLiterais(ATexto.substr(0, APosicao));
    std::erase(conteudo, u' ');
    return conteudo;
}

std::optional<std::u16string> TMascara::Dispor(std::u16string_view AConteudo) const {
    const bool aDireita = FADireita && CabeNosLugares<true>(AConteudo);
    if (!aDireita && !CabeNosLugares<false>(AConteudo)) return std::nullopt;
    std::u16string texto = aDireita ? Distribuir<true>(AConteudo) : Distribuir<false>(AConteudo);
    Arrumar(texto);
    return texto;
}

/// True when each character of a stored value is one that its place takes.
template <bool AInverso>
bool TMascara::CabeNosLugares(std::u16string_view AValor) const noexcept {
    if (AValor.size() > FCampos) return false;
    std::size_t usados = 0;
    for (std::size_t i = 0; i < FLugares.size() && usados < AValor.size(); ++i) {
        const TLugar& lugar = FLugares[AInverso ? FLugares.size() - 1 - i : i];
        if (lugar.Tipo == tlLiteral) continue;
        const char16_t c = AValor[AInverso ? AValor.size() - 1 - usados : usados];
        if (!EhVazio(c) && !LugarAceita(lugar, c)) return false;
        ++usados;
    }
    return true;
}

std::u16string TMascara::ParaEdicao(std::u16string_view AValor) const {
    if (EstahVazia()) return std::u16string(AValor);
    std::u16string texto;
    if (EhTextoDaMascara(AValor))
        texto = AValor;
    else if (FADireita)
        texto = CabeNosLugares<true>(AValor) ? Distribuir<true>(AValor) : Preencher<true>(AValor);
    else
        texto = CabeNosLugares<false>(AValor) ? Distribuir<false>(AValor) : Preencher<false>(AValor);
    Arrumar(texto);
    return texto;
}

/// A text of this mask as an edit shows it: each character in its case, empty places as the mask shows them.
void TMascara::Arrumar(std::u16string& ATexto) const {
    for (std::size_t i = 0; i < ATexto.size(); ++i)
        if (FLugares[i].Tipo != tlLiteral) ATexto[i] = EhVazio(ATexto[i]) ? FBranco : NaCaixa(FLugares[i], ATexto[i]);
}

/// The characters of the places of a text of this mask, empty ones as spaces.
std::u16string TMascara::RetirarLiterais(std::u16string_view ATexto) const {
    std::u16string valor;
    for (std::size_t i = 0; i < ATexto.size(); ++i)
        if (FLugares[i].Tipo != tlLiteral) valor += EhVazio(ATexto[i]) ? u' ' : ATexto[i];
    return valor;
}

std::u16string TMascara::ParaValor(std::u16string_view ATexto) const {
    if (EstahVazia()) return std::u16string(ATexto);
    std::u16string texto = Sair(ParaEdicao(ATexto));
    std::u16string valor = RetirarLiterais(texto);
    const std::size_t primeiro = valor.find_first_not_of(u' ');
    if (primeiro == valor.npos) return {};
    if (!FGravaLiterais) {
        if (FADireita) return valor.substr(primeiro);
        valor.resize(valor.find_last_not_of(u' ') + 1);
        return valor;
    }
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (FLugares[i].Tipo != tlLiteral && EhVazio(texto[i])) texto[i] = u' ';
    return texto;
}

}  // namespace OryUtils
