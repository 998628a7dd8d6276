#include "oryutils/fields/Mascara.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/interno/CamposDaMascara.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr bool EhSurrogado(char16_t ACaractere) { return ACaractere >= 0xD800 && ACaractere <= 0xDFFF; }
constexpr bool EhControle(char16_t ACaractere) {
    return ACaractere < u' ' || (ACaractere >= 0x7F && ACaractere <= 0x9F);
}
bool EhLetraComCaixa(char16_t ACaractere) noexcept {
    return EhLetra(ACaractere) || MaiusculaDe(ACaractere) != ACaractere || MinusculaDe(ACaractere) != ACaractere;
}

struct TFaixa {
    std::size_t Inicio, Fim;
};
TFaixa BuscarSelecao(const TEdicaoMascara& AEdicao) {
    return {std::min(AEdicao.Cursor, AEdicao.Ancora), std::max(AEdicao.Cursor, AEdicao.Ancora)};
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
    const auto literal = [&](char16_t ACaractere) {
        if (ACaractere != 0) Incluir({.Literal = ACaractere});
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
                literal(AFormatos.DateSeparator);
                break;
            case u':':
                literal(AFormatos.TimeSeparator);
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
    if (FLugares.size() > CMaiorTamanho) Recusar(AMascara.substr(0, CMaiorTamanho), u"longa demais.");
    if (FCampos == 0) Recusar(AMascara, u"não tem onde digitar.");
    const bool tomado =
        std::ranges::any_of(FLugares, [&](const TLugar& l) { return l.Tipo != tlQualquer && LugarAceita(l, FBranco); });
    if (tomado || EhControle(FBranco) || EhSurrogado(FBranco))
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
            return !EhControle(ACaractere) && !EhSurrogado(ACaractere);
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

/// Puts ACaractere, which is not an empty one, at APasso or behind, both counted from the end when AInverso. The result
/// is where the next one goes; none when it has no place here.
template <bool AInverso>
std::optional<std::size_t> TMascara::Inserir(std::u16string& ATexto, std::size_t APasso, char16_t ACaractere) const {
    const std::size_t fim = FLugares.size();
    const auto posicaoDe = [&](std::size_t APassoDado) { return AInverso ? fim - 1 - APassoDado : APassoDado; };
    const auto ehLiteral = [&](std::size_t APassoDado) { return FLugares[posicaoDe(APassoDado)].Tipo == tlLiteral; };
    const auto ehEste = [&](std::size_t APassoDado) { return FLugares[posicaoDe(APassoDado)].Literal == ACaractere; };

    std::size_t campo = APasso;
    while (campo < fim && ehLiteral(campo)) ++campo;
    if (campo < fim) {
        const TLugar& lugar = FLugares[posicaoDe(campo)];
        const char16_t convertido = NaCaixa(lugar, ACaractere);
        if (LugarAceita(lugar, convertido)) {
            ATexto[posicaoDe(campo)] = convertido;
            return campo + 1;
        }
    }
    // The literals that the caret has just skipped are often typed all the same.
    for (std::size_t i = APasso; i > 0 && ehLiteral(i - 1); --i)
        if (ehEste(i - 1)) return APasso;
    for (std::size_t i = APasso; i < campo; ++i)
        if (ehEste(i)) return i + 1;
    while (campo < fim && !ehLiteral(campo)) ++campo;
    for (; campo < fim && ehLiteral(campo); ++campo)
        if (ehEste(campo)) return campo + 1;
    return std::nullopt;
}

/// A text that people wrote, as the text of an edit: spaces only part its groups.
template <bool AInverso>
std::u16string TMascara::Preencher(std::u16string_view AValor) const {
    std::u16string texto = GetTextoVazio();
    std::size_t passo = 0;
    for (std::size_t i = 0; i < AValor.size() && passo < texto.size(); ++i) {
        const char16_t c = AValor[AInverso ? AValor.size() - 1 - i : i];
        if (!EhVazio(c)) passo = Inserir<AInverso>(texto, passo, c).value_or(passo);
    }
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
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (FLugares[i].Tipo != tlLiteral) texto[i] = EhVazio(texto[i]) ? FBranco : NaCaixa(FLugares[i], texto[i]);
    return texto;
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

std::u16string TMascara::Sair(std::u16string_view ATexto) const {
    std::u16string texto = ParaEdicao(ATexto);
    if (!FADireita) return texto;
    std::vector<std::size_t> campos;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (FLugares[i].Tipo != tlLiteral) campos.push_back(i);
    std::size_t vazios = 0;
    while (vazios < campos.size() && EhVazio(texto[campos[campos.size() - 1 - vazios]])) ++vazios;
    if (vazios == 0 || vazios == campos.size()) return texto;
    std::u16string antes = texto;
    for (std::size_t i = campos.size(); i-- > 0;) {
        const char16_t c = i >= vazios ? antes[campos[i - vazios]] : FBranco;
        // Places of different kinds: what does not fit further right stays.
        if (!EhVazio(c) && !LugarAceita(FLugares[campos[i]], c)) return antes;
        texto[campos[i]] = EhVazio(c) ? c : NaCaixa(FLugares[campos[i]], c);
    }
    return texto;
}

std::size_t TMascara::BuscarCampo(std::size_t APosicao) const noexcept {
    while (APosicao < FLugares.size() && FLugares[APosicao].Tipo == tlLiteral) ++APosicao;
    return APosicao;
}

void TMascara::Esvaziar(std::u16string& ATexto, std::size_t AInicio, std::size_t AFim) const {
    for (std::size_t i = AInicio; i < AFim; ++i)
        if (FLugares[i].Tipo != tlLiteral) ATexto[i] = FBranco;
}

TEdicaoMascara TMascara::Ajustar(const TEdicaoMascara& AEdicao) const {
    TEdicaoMascara edicao{ParaEdicao(AEdicao.Texto), AEdicao.Cursor, AEdicao.Ancora};
    edicao.Cursor = std::min(edicao.Cursor, edicao.Texto.size());
    edicao.Ancora = std::min(edicao.Ancora, edicao.Texto.size());
    return edicao;
}

TEdicaoMascara TMascara::Digitar(const TEdicaoMascara& AEdicao, char16_t ACaractere) const {
    TEdicaoMascara antes = Ajustar(AEdicao);
    const auto [inicio, fim] = BuscarSelecao(antes);
    TEdicaoMascara depois = antes;
    if (EstahVazia()) {
        if (EhControle(ACaractere)) return antes;
        depois.Texto.replace(inicio, fim - inicio, 1, ACaractere);
        depois.Cursor = depois.Ancora = inicio + 1;
        return depois;
    }
    Esvaziar(depois.Texto, inicio, fim);
    std::optional<std::size_t> seguinte;
    if (!EhVazio(ACaractere)) {
        seguinte = Inserir<false>(depois.Texto, inicio, ACaractere);
    } else if (const std::size_t campo = BuscarCampo(inicio); campo < depois.Texto.size()) {
        depois.Texto[campo] = FBranco;
        seguinte = campo + 1;
    }
    if (!seguinte) return antes;
    depois.Cursor = depois.Ancora = BuscarCampo(*seguinte);
    return depois;
}

TEdicaoMascara TMascara::Colar(const TEdicaoMascara& AEdicao, std::u16string_view ATexto) const {
    TEdicaoMascara edicao = Ajustar(AEdicao);
    const auto [inicio, fim] = BuscarSelecao(edicao);
    if (EstahVazia()) {
        edicao.Texto.replace(inicio, fim - inicio, ATexto);
        edicao.Cursor = edicao.Ancora = inicio + ATexto.size();
        return edicao;
    }
    // A whole text of the mask keeps its empty places; in any other one spaces only part its groups.
    if (BuscarCampo(0) >= inicio && EhTextoDaMascara(ATexto)) {
        edicao.Texto = ParaEdicao(ATexto);
        edicao.Cursor = edicao.Ancora = edicao.Texto.size();
        return edicao;
    }
    Esvaziar(edicao.Texto, inicio, fim);
    std::size_t cursor = inicio;
    for (const char16_t c : ATexto) {
        if (cursor >= edicao.Texto.size()) break;
        if (!EhVazio(c)) cursor = BuscarCampo(Inserir<false>(edicao.Texto, cursor, c).value_or(cursor));
    }
    edicao.Cursor = edicao.Ancora = cursor;
    return edicao;
}

TEdicaoMascara TMascara::Teclar(const TEdicaoMascara& AEdicao, TTeclaMascara ATecla) const {
    TEdicaoMascara edicao = Ajustar(AEdicao);
    std::size_t& cursor = edicao.Cursor;
    const auto [inicio, fim] = BuscarSelecao(edicao);
    const bool semMascara = EstahVazia();
    std::size_t anterior = cursor;
    while (!semMascara && anterior > 0 && FLugares[anterior - 1].Tipo == tlLiteral) --anterior;

    if ((ATecla == tmApagar || ATecla == tmExcluir) && inicio < fim) {
        cursor = inicio;
        if (semMascara)
            edicao.Texto.erase(inicio, fim - inicio);
        else
            Esvaziar(edicao.Texto, inicio, fim);
    } else if (ATecla == tmApagar && anterior > 0) {
        cursor = anterior - 1;
        if (semMascara)
            edicao.Texto.erase(cursor, 1);
        else
            Esvaziar(edicao.Texto, cursor, anterior);
    } else if (ATecla == tmExcluir && BuscarCampo(cursor) < edicao.Texto.size()) {
        cursor = BuscarCampo(cursor);
        if (semMascara)
            edicao.Texto.erase(cursor, 1);
        else
            Esvaziar(edicao.Texto, cursor, cursor + 1);
    } else if (ATecla == tmEsquerda && anterior > 0) {
        cursor = anterior - 1;
    } else if (ATecla == tmDireita && cursor < edicao.Texto.size()) {
        cursor = BuscarCampo(BuscarCampo(cursor) + 1);
        cursor = std::min(cursor, edicao.Texto.size());
    } else if (ATecla == tmInicio) {
        cursor = BuscarCampo(0);
    } else if (ATecla == tmFim) {
        cursor = edicao.Texto.size();
        while (!semMascara && cursor > 0 &&
               (FLugares[cursor - 1].Tipo == tlLiteral || EhVazio(edicao.Texto[cursor - 1])))
            --cursor;
        cursor = BuscarCampo(cursor);
    }
    edicao.Ancora = cursor;
    return edicao;
}

}  // namespace OryUtils
