#include "oryutils/text/OryUtilsFormulas.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/text/interno/FormulaAvaliador.hpp"

#include <array>
#include <cmath>

namespace OryUtils {
namespace {

constexpr std::u16string_view COperadores = u"*/+-";  // in the order of TOperCalc

Interno::TRegrasFormula BuscarRegras(TMetodoArredondamento AAjuste, std::uint8_t ACasas) {
    const TFormatSettings& formatos = FormatSettings();
    return {formatos.DecimalSeparator, formatos.ThousandSeparator, AAjuste, ACasas};
}

Extended Operar(TOperCalc AOperador, Extended AUm, Extended AOutro) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return Operar(AOperador, AUm, AOutro); });
    return Interno::CalcularOperacao(AOperador, AUm, AOutro);
}

}  // namespace

TOryUtilsFormulas::TOryUtilsFormulas() : FAvaliador(std::make_unique<Interno::TAvaliador>()) {}
TOryUtilsFormulas::~TOryUtilsFormulas() = default;

Interno::TAvaliador& TOryUtilsFormulas::Preparar() {
    FAvaliador->SetRegras(BuscarRegras(FTipoAjusteValor, FCasasDecimais));
    return *FAvaliador;
}

void TOryUtilsFormulas::SetExpressao(std::u16string_view AExpressao) {
    if (AExpressao == FExpressao) return;
    FExpressao.assign(AExpressao);
    FValor = Calcular(FExpressao);
}

void TOryUtilsFormulas::SetValor(Extended AValor) {
    if (AValor == FValor) return;
    FValor = AValor;
    FExpressao = AValor == 0 ? std::u16string() : ExtendedParaTexto(AValor);
}

const std::vector<std::u16string>& TOryUtilsFormulas::GetVariaveis() const noexcept {
    return FAvaliador->Variaveis.GetLinhas();
}

void TOryUtilsFormulas::SetVariaveis(const std::vector<std::u16string>& AVariaveis) {
    FAvaliador->Variaveis.SetLinhas(RetirarEspacosEmBranco(AVariaveis));
}

void TOryUtilsFormulas::AdicionarVariavel(std::u16string_view ANome, Extended AValor) {
    FAvaliador->Variaveis.Definir(ANome, AValor, FormatSettings().DecimalSeparator);
}

void TOryUtilsFormulas::AdicionarVariaveis(const std::vector<std::u16string>& ANomes,
                                           const std::vector<Extended>& AValores) {
    if (ANomes.size() != AValores.size())
        throw Exception(u"O número de itens de argumentos das variáveis deve ser igual.");
    for (std::size_t i = 0; i < ANomes.size(); ++i) AdicionarVariavel(ANomes[i], AValores[i]);
}

void TOryUtilsFormulas::LimparVariaveis() {
    FAvaliador->Variaveis.Limpar();
    FExpressaoResolvida.clear();
}

Extended TOryUtilsFormulas::Calcular(std::u16string_view AExpressao) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return Calcular(AExpressao); });
    return Preparar().Calcular(AExpressao, &FExpressaoResolvida);
}

Extended TOryUtilsFormulas::AjustarValorVariavel(Extended AValor) const {
    return BuscarRegras(FTipoAjusteValor, FCasasDecimais).Ajustar(AValor);
}

std::u16string TOryUtilsFormulas::RetirarEspacosEmBranco(std::u16string_view ATexto) {
    std::u16string texto(ATexto);
    std::erase(texto, u' ');
    return texto;
}

std::vector<std::u16string> TOryUtilsFormulas::RetirarEspacosEmBranco(const std::vector<std::u16string>& ALinhas) {
    std::vector<std::u16string> linhas(ALinhas);
    for (std::u16string& linha : linhas) std::erase(linha, u' ');
    return linhas;
}

void TOryUtilsFormulas::ResolverFuncoes(std::u16string& AFormula) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { ResolverFuncoes(AFormula); });
    const std::u16string_view resolvida = Preparar().ResolverFuncoes(AFormula);
    FAvaliador->LancarErro();
    AFormula = resolvida;
}

void TOryUtilsFormulas::ResolverVariaveis(std::u16string& AFormula) {
    const std::u16string_view resolvida = Preparar().ResolverVariaveis(AFormula);
    FAvaliador->LancarErro();
    AFormula = resolvida;
}

void TOryUtilsFormulas::ResolverDuploSinalNegativo(std::u16string& AFormula) {
    AFormula = Preparar().ResolverDuploSinalNegativo(AFormula);
}

void TOryUtilsFormulas::ResolverParenteses(std::u16string& AFormula) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { ResolverParenteses(AFormula); });
    const std::u16string_view resolvida = Preparar().ResolverParenteses(AFormula);
    FAvaliador->LancarErro();
    AFormula = resolvida;
}

Extended TOryUtilsFormulas::CalcularExpressao(std::u16string_view ATexto) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return CalcularExpressao(ATexto); });
    const Extended valor = Preparar().CalcularExpressao(ATexto);
    FAvaliador->LancarErro();
    return valor;
}

bool TOryUtilsFormulas::EhVariavel(char16_t ACaractere) { return BuscarRegras(maNenhum, 0).EhVariavel(ACaractere); }

bool TOryUtilsFormulas::EhOperador(std::u16string_view ATexto, std::size_t APosicao) {
    if (APosicao == 0 || APosicao > ATexto.size()) return false;
    const char16_t c = ATexto[APosicao - 1];
    if (c == u'-') return APosicao >= 2 && !Interno::EhOperadorExcetoSubtracao(ATexto[APosicao - 2]);
    return Interno::EhOperadorExcetoSubtracao(c);
}

std::size_t TOryUtilsFormulas::GetPosOperador(TOperCalc AOperador, std::u16string_view ATexto) {
    for (std::size_t p = 1; p <= ATexto.size(); ++p)
        if (ATexto[p - 1] == COperadores[AOperador] && EhOperador(ATexto, p)) return p;
    return 0;
}

std::u16string TOryUtilsFormulas::GetPrimeiroArgumento(std::u16string_view ATexto, std::size_t APosicao) {
    if (APosicao == 0 || APosicao > ATexto.size()) return {};
    std::size_t antes = APosicao - 1;
    while (antes > 0 && !EhOperador(ATexto, antes)) --antes;
    return std::u16string(ATexto.substr(antes, APosicao - 1 - antes));
}

std::u16string TOryUtilsFormulas::GetSegundoArgumento(std::u16string_view ATexto, std::size_t APosicao) {
    if (APosicao == 0 || APosicao > ATexto.size()) return {};
    std::size_t depois = APosicao + 1;
    while (depois <= ATexto.size() && !EhOperador(ATexto, depois)) ++depois;
    return std::u16string(ATexto.substr(APosicao, depois - 1 - APosicao));
}

std::pair<std::u16string, std::u16string> TOryUtilsFormulas::GetArgumentos(std::u16string_view ATexto) {
    const std::size_t separador = ATexto.find(u';');
    if (separador == std::u16string_view::npos)
        throw Exception(u"São necessários dois argumentos para calcular a função.");
    return {std::u16string(ATexto.substr(0, separador)), std::u16string(ATexto.substr(separador + 1))};
}

Extended TOryUtilsFormulas::GetSoma(Extended AUm, Extended AOutro) noexcept { return Operar(ocSoma, AUm, AOutro); }

Extended TOryUtilsFormulas::GetSubtracao(Extended AUm, Extended AOutro) noexcept {
    return Operar(ocSubtracao, AUm, AOutro);
}

Extended TOryUtilsFormulas::GetMultiplicacao(Extended AUm, Extended AOutro) noexcept {
    return Operar(ocMultiplicacao, AUm, AOutro);
}

Extended TOryUtilsFormulas::GetDivisao(Extended ADividendo, Extended ADivisor) noexcept {
    return Operar(ocDivisao, ADividendo, ADivisor);
}

Extended TOryUtilsFormulas::GetInteiro(Extended AValor) noexcept { return std::trunc(AValor); }

Extended TOryUtilsFormulas::GetExponencial(Extended ABase, Extended AExpoente) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return GetExponencial(ABase, AExpoente); });
    constexpr Extended CMaiorExpoenteInteiro = 2147483647;
    if (std::trunc(AExpoente) != AExpoente || !(std::abs(AExpoente) <= CMaiorExpoenteInteiro))
        return std::pow(ABase, AExpoente);
    // By squares: whole powers are exact as far as the digits go, on every system.
    Extended potencia = 1;
    Extended quadrado = ABase;
    for (auto resto = static_cast<std::uint64_t>(std::abs(AExpoente)); resto > 0; resto >>= 1) {
        if (resto & 1) potencia *= quadrado;
        quadrado *= quadrado;
    }
    return AExpoente < 0 ? 1 / potencia : potencia;
}

}  // namespace OryUtils
