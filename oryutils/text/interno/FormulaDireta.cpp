#include "oryutils/text/interno/FormulaDireta.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/text/interno/FormulaExpressao.hpp"

#include <algorithm>
#include <bit>

namespace OryUtils::Interno {
namespace {

constexpr std::ptrdiff_t CMaximoDeDigitos = 15;

constexpr bool EhIgnorado(char16_t c) noexcept { return c == u' ' || c == u'.'; }
constexpr bool EhLetra(char16_t c) noexcept { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c >= 128; }
constexpr unsigned BitDe(TOperCalc AOperador) noexcept { return 1U << AOperador; }
constexpr unsigned BitsAte(TOperCalc AOperador) noexcept { return (2U << AOperador) - 1; }

/// Behind the limit of the resolved text.
constexpr std::size_t CReserva = CTamanhoMaximoExtended + 2;

/// A character of a name.
struct TDeNome {
    char16_t Maiuscula = 0;  // 0 ends the name
    char16_t Minuscula = 0;
};
constexpr auto CDeNome = [] {
    constexpr char16_t CFim = 128;
    std::array<TDeNome, CFim> tabela{};
    for (char16_t c = 0; c < CFim; ++c)
        if (EhDigito(c) || c == u'_' || c == u',') tabela[c] = {c, c};
    for (char16_t c = u'A'; c <= u'Z'; ++c) {
        const auto minuscula = static_cast<char16_t>(c + 32);
        tabela[c] = tabela[minuscula] = {c, minuscula};
    }
    return tabela;
}();

/// Up to three characters in one number.
constexpr std::uint64_t JuntarNome(std::u16string_view ANome) noexcept {
    std::uint64_t junto = 0;
    for (const char16_t c : ANome) junto = junto << 16 | c;
    return junto;
}
constexpr auto CNomesJuntos = [] {
    std::array<std::uint64_t, CNomesFuncoes.size()> juntos{};
    for (std::size_t i = 0; i < juntos.size(); ++i) juntos[i] = JuntarNome(CNomesFuncoes[i]);
    return juntos;
}();

std::optional<TFuncCalc> BuscarFuncao(std::u16string_view ANome) noexcept {
    if (ANome.size() > 3) return std::nullopt;
    const std::uint64_t junto = JuntarNome(ANome);
    for (std::size_t i = 0; i < CNomesJuntos.size(); ++i)
        if (junto == CNomesJuntos[i]) return static_cast<TFuncCalc>(i);
    return std::nullopt;
}

/// The value of the functions that need no extended float, and of the others by it.
std::optional<TDecimal> Resolver(TFuncCalc AFuncao, TDecimal AUm, TDecimal AOutro) noexcept {
    switch (AFuncao) {
        case fcABS:
            return AUm.Digitos < 0 ? AUm.Oposto() : AUm;
        case fcMAX:
        case fcMIN: {
            const bool maior = AUm.Decimais == AOutro.Decimais ? AUm.Digitos > AOutro.Digitos
                                                               : AUm.ParaExtended() > AOutro.ParaExtended();
            return maior == (AFuncao == fcMAX) ? AUm : AOutro;
        }
        default:
            return DecimalDe(CalcularFuncao(AFuncao, AUm.ParaExtended(), AOutro.ParaExtended()));
    }
}

}  // namespace

std::optional<Extended> TFormulaDireta::Calcular(std::u16string_view AFormula, const TRegrasFormula& ARegras,
                                                 std::u16string* AResolvida) {
    if (AFormula.empty() || ARegras.SeparadorDecimal != u',' || ARegras.SeparadorMilhar != u'.') return std::nullopt;
    FRegras = ARegras;
    FLeitura = AFormula.data();
    FFim = FLeitura + AFormula.size();
    FFuncoesAbertas = 0;
    FTerminou = false;
    FEscrita = FResolvida.data();
    FLimite = FEscrita + FResolvida.size() - std::min(FResolvida.size(), CReserva);
    ReservarValor();
    FGrupo = FGrupos.data();
    FGrupo->Operador = CSemOperador;
    FGrupo->Esperando = 0;
    FGrupo->Sinal = FGrupo->EhFuncao = FGrupo->FaltaSeparador = false;

    while (!FTerminou)
        if (!LerOperando()) return std::nullopt;
    if (AResolvida) AResolvida->assign(FResolvida.data(), FEscrita);
    return FGrupo->Atual.ParaExtended();
}

void TFormulaDireta::AumentarResolvida() {
    const auto escritos = static_cast<std::size_t>(FEscrita - FResolvida.data());
    FResolvida.resize((escritos + static_cast<std::size_t>(FFim - FLeitura) + CReserva) * 2);
    FEscrita = FResolvida.data() + escritos;
    FLimite = FResolvida.data() + FResolvida.size() - CReserva;
}

/// Reads up to an operand and what follows it, or up to what opens a group.
bool TFormulaDireta::LerOperando() {
    for (; FLeitura != FFim; ++FLeitura) {
        const char16_t c = *FLeitura;
        if (EhDigito(c)) return LerNumero() && LerOperador();
        if (c == u'(') {
            Copiar(c);
            ++FLeitura;
            return Abrir(false, fcSQR);
        }
        if (c == u'-') {
            // Two of them are a "+", whatever it makes of what stands before.
            if (FGrupo->Sinal || FGrupo->Operador == ocSubtracao) return false;
            FGrupo->Sinal = true;
            Copiar(c);
        } else if (EhLetra(c)) {
            return LerNome();
        } else if (!EhIgnorado(c)) {
            return false;
        }
    }
    return false;
}

bool TFormulaDireta::LerNumero() {
    const char16_t* p = FLeitura;
    TDecimal valor;
    std::ptrdiff_t quantos = 0;
    bool tem_separador = false;
    for (; p != FFim; ++p) {
        if (EhDigito(*p)) {
            if (++quantos > CMaximoDeDigitos) return false;
            valor.Digitos = valor.Digitos * 10 + (*p - u'0');
            valor.Decimais += tem_separador;
        } else if (*p == u',') {
            if (tem_separador) return false;
            tem_separador = true;
        } else if (*p == u'.') {
            continue;
        } else {
            break;
        }
        Copiar(*p);
    }
    FLeitura = p;
    return Receber(valor, orLiteral);
}

bool TFormulaDireta::LerNome() {
    // In upper case at the end of the resolved text, where the value takes its place.
    char16_t* escrita = FEscrita;
    const char16_t* p = FLeitura;
    TDispersao dispersao;
    for (; p != FFim; ++p) {
        if (*p < CDeNome.size()) {
            const TDeNome c = CDeNome[*p];
            if (c.Maiuscula == 0) break;
            *escrita++ = c.Maiuscula;
            dispersao.JuntarMinuscula(c.Minuscula);
        } else {
            *escrita = MaiusculaDe(*p);
            dispersao.Juntar(*escrita++);
        }
    }
    const std::u16string_view nome(FEscrita, escrita);
    while (p != FFim && EhIgnorado(*p)) ++p;
    if (p != FFim && *p == u'(') {
        FLeitura = p + 1;
        const auto funcao = BuscarFuncao(nome);
        return funcao && Abrir(true, *funcao);
    }
    FLeitura = p;
    const TVariaveis::TValor* const valor = FVariaveis.BuscarValor(nome, dispersao);
    if (!valor || !valor->Decimal) return false;
    if (FFuncoesAbertas == 0) {
        ReservarValor();
        std::copy(valor->Texto.begin(), valor->Texto.end(), FEscrita);  // a fixed length goes faster
        FEscrita += valor->Tamanho;
    }
    return Receber(*valor->Decimal, orTexto) && LerOperador();
}

/// Reads what follows an operand: groups that end, then an operator, a ";" or the end.
bool TFormulaDireta::LerOperador() {
    for (; FLeitura != FFim; ++FLeitura) {
        const char16_t c = *FLeitura;
        switch (c) {
            case u'*':
                FGrupo->Operador = ocMultiplicacao;
                break;
            case u'/':
                FGrupo->Operador = ocDivisao;
                break;
            case u'+':
                FGrupo->Operador = ocSoma;
                break;
            case u'-':
                FGrupo->Operador = ocSubtracao;
                break;
            case u')':
                if (!Fechar()) return false;
                continue;
            case u';':
                ++FLeitura;
                return Separar();
            case u' ':
            case u'.':
                continue;
            default:
                return false;
        }
        Copiar(c);
        ++FLeitura;
        return true;
    }
    FTerminou = true;
    return FGrupo == FGrupos.data() && Reduzir(ocSubtracao);
}

bool TFormulaDireta::Abrir(bool AEhFuncao, TFuncCalc AFuncao) {
    const TGrupo& fora = *FGrupo;
    // The first ";" would be the one of this function.
    if (AEhFuncao && fora.FaltaSeparador && AFuncao >= fora.Funcao) return false;
    if (FGrupo == &FGrupos.back()) return false;
    ++FGrupo;
    FGrupo->Operador = CSemOperador;
    FGrupo->Esperando = 0;
    FGrupo->Sinal = false;
    FGrupo->EhFuncao = AEhFuncao;
    FGrupo->Funcao = AEhFuncao ? AFuncao : fora.Funcao;
    FGrupo->FaltaSeparador = AEhFuncao ? TemDoisArgumentos(AFuncao) : fora.FaltaSeparador;
    FFuncoesAbertas += AEhFuncao;
    return true;
}

bool TFormulaDireta::Separar() {
    if (!FGrupo->EhFuncao || !FGrupo->FaltaSeparador || !Reduzir(ocSubtracao)) return false;
    FGrupo->FaltaSeparador = false;
    FGrupo->Primeiro = FGrupo->Atual;
    return true;
}

bool TFormulaDireta::Fechar() {
    if (FGrupo == FGrupos.data() || !Reduzir(ocSubtracao)) return false;
    const TGrupo& grupo = *FGrupo--;
    if (!grupo.EhFuncao) {
        Copiar(u')');
        return !grupo.Atual.TemExpoente() && Receber(grupo.Atual, orParentese);
    }
    if (grupo.FaltaSeparador) return false;
    const auto valor = TemDoisArgumentos(grupo.Funcao) ? Resolver(grupo.Funcao, grupo.Primeiro, grupo.Atual)
                                                       : Resolver(grupo.Funcao, grupo.Atual, {});
    if (!valor || valor->TemExpoente()) return false;
    if (--FFuncoesAbertas == 0) {
        ReservarValor();
        FEscrita = EscreverDecimal(*valor, FEscrita, u',');
    }
    return Receber(*valor, orTexto);
}

/// The operand that comes behind Operador.
inline bool TFormulaDireta::Receber(TDecimal AValor, TOrigem AOrigem) {
    const bool tem_sinal = FGrupo->Sinal || (AValor.Digitos < 0 && FGrupo->Operador == ocSubtracao);
    return tem_sinal ? ReceberComSinal(AValor, AOrigem) : Empurrar(AValor);
}

/// A negative one meets the "-" before it: in the first text, where variables and functions stand, the two become a
/// "+"; later they are two subtractions, with nothing in between.
bool TFormulaDireta::ReceberComSinal(TDecimal AValor, TOrigem AOrigem) {
    if (FGrupo->Sinal) {
        if (AValor.Digitos <= 0) return false;
        FGrupo->Sinal = false;
        return Empurrar(AValor.Oposto());
    }
    if (AOrigem == orTexto) {
        FGrupo->Operador = ocSoma;
    } else {
        if (!Empurrar({})) return false;
        FGrupo->Operador = ocSubtracao;
    }
    return Empurrar(AValor.Oposto());
}

bool TFormulaDireta::Empurrar(TDecimal AValor) {
    TGrupo& grupo = *FGrupo;
    const TOperCalc operador = grupo.Operador;
    if (operador != CSemOperador) {
        if ((grupo.Esperando & BitsAte(operador)) != 0 && !Reduzir(operador)) return false;
        grupo.Esquerdas[operador] = grupo.Atual;
        grupo.Esperando = static_cast<std::uint8_t>(grupo.Esperando | BitDe(operador));
        grupo.Operador = CSemOperador;
    }
    grupo.Atual = AValor;
    return true;
}

/// The result takes the place of AOutro.
inline bool TFormulaDireta::Operar(TOperCalc AOperador, const TDecimal& AUm, TDecimal& AOutro) const {
    if (FRegras.Ajuste == maNenhum) {
        if (AOperador == ocMultiplicacao) {
            if (MultiplicarDecimais(AUm, AOutro, AOutro)) return true;
        } else if (AOperador != ocDivisao) {
            if (SomarDecimais(AUm, AOperador == ocSoma ? AOutro : AOutro.Oposto(), AOutro)) return true;
        }
    }
    return OperarPorExtended(AOperador, AUm, AOutro);
}

/// AValor - 0, which is AValor unless it is rounded or has an exponent.
inline bool TFormulaDireta::SubtrairNada(TDecimal& AValor) const {
    if (FRegras.Ajuste == maNenhum && !AValor.TemExpoente()) return true;
    TDecimal resultado;
    if (!OperarPorExtended(ocSubtracao, AValor, resultado)) return false;
    AValor = resultado;
    return true;
}

/// Resolves the operators up to AUltimo that wait for Atual.
bool TFormulaDireta::Reduzir(TOperCalc AUltimo) {
    TGrupo& grupo = *FGrupo;
    while (const unsigned prontos = grupo.Esperando & BitsAte(AUltimo)) {
        const auto operador = static_cast<TOperCalc>(std::countr_zero(prontos));
        grupo.Esperando = static_cast<std::uint8_t>(grupo.Esperando & ~BitDe(operador));
        if (!Operar(operador, grupo.Esquerdas[operador], grupo.Atual)) return false;
        if (grupo.Atual.Digitos >= 0 || grupo.Esperando != BitDe(ocSubtracao)) continue;
        // Behind a "-" the sign of a result is one more subtraction.
        if (!SubtrairNada(grupo.Esquerdas[ocSubtracao])) return false;
        grupo.Atual = grupo.Atual.Oposto();
    }
    return true;
}

bool TFormulaDireta::OperarPorExtended(TOperCalc AOperador, const TDecimal& AUm, TDecimal& AOutro) const {
    const auto valor =
        DecimalDe(FRegras.Ajustar(CalcularOperacao(AOperador, AUm.ParaExtended(), AOutro.ParaExtended())));
    if (valor) AOutro = *valor;
    return valor.has_value();
}

}  // namespace OryUtils::Interno
