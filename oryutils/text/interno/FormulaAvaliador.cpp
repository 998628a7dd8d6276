#include "oryutils/text/interno/FormulaAvaliador.hpp"

#include "oryutils/characters/Caixa.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CNenhum = std::u16string_view::npos;

enum TClasse : std::uint8_t { clOutro, clComum, clMinuscula, clIgnorado, clAbre, clFecha, clSeparador };

/// What the first step does with each of the ASCII characters.
constexpr auto CClasses = [] {
    std::array<TClasse, 128> classes{};
    for (std::size_t c = 0; c < classes.size(); ++c) classes[c] = c >= 'a' && c <= 'z' ? clMinuscula : clComum;
    classes[' '] = classes['.'] = clIgnorado;
    classes['('] = clAbre;
    classes[')'] = clFecha;
    classes[';'] = clSeparador;
    return classes;
}();

/// A formula may grow by this much for each of its characters when its variables are resolved, and no value is as long.
/// Values that name variables again, as "1E20" does, would make it grow for ever.
constexpr std::size_t CCrescimento = 64;
constexpr std::size_t CCrescimentoMinimo = 64 * 1024;

}  // namespace

Extended TAvaliador::Calcular(std::u16string_view AFormula, std::u16string* AResolvida) {
    if (const auto valor = FDireta.Calcular(AFormula, FRegras, AResolvida)) return *valor;
    const std::u16string_view sem_funcoes = ResolverFuncoes(AFormula);
    LancarErro();
    const Extended valor = CalcularSemFuncoes(sem_funcoes, AResolvida);
    LancarErro();
    return valor;
}

Extended TAvaliador::CalcularSemFuncoes(std::u16string_view AFormula, std::u16string* AResolvida) {
    AFormula = ResolverVariaveis(AFormula);
    if (FErro.Motivo != meNenhum) return 0;
    if (AResolvida) AResolvida->assign(AFormula);
    AFormula = ResolverParenteses(ResolverDuploSinalNegativo(AFormula));
    return FErro.Motivo == meNenhum ? CalcularExpressao(AFormula) : 0;
}

std::u16string_view TAvaliador::ResolverFuncoes(std::u16string_view AFormula) {
    FChamadas.Limpar();
    FAbertas.clear();
    FEscritos = 0;
    const char16_t* const fim = AFormula.data() + AFormula.size();
    char16_t* escrita = ReservarSemFuncoes(AFormula.size());
    const auto anotar_escritos = [&] { FEscritos = static_cast<std::size_t>(escrita - FSemFuncoes.data()); };
    for (const char16_t* p = AFormula.data(); p != fim; ++p) {
        const char16_t c = *p;
        switch (c < CClasses.size() ? CClasses[c] : clOutro) {
            case clComum:
                *escrita++ = c;
                break;
            case clMinuscula:
                *escrita++ = static_cast<char16_t>(c - 32);
                break;
            case clIgnorado:
                break;
            case clOutro:
                *escrita++ = MaiusculaDe(c);
                break;
            case clSeparador:
                anotar_escritos();
                if (!FAbertas.empty() && FAbertas.back().Separador == CNenhum) FAbertas.back().Separador = FEscritos;
                *escrita++ = c;
                break;
            case clAbre: {
                anotar_escritos();
                const std::size_t inicio = FAbertas.empty() ? 0 : FAbertas.back().Inicio;
                if (const auto funcao = BuscarFuncaoNoFim({FSemFuncoes.data() + inicio, escrita})) {
                    escrita -= CNomesFuncoes[*funcao].size();
                    anotar_escritos();
                    AbrirFuncao(*funcao);
                    break;
                }
                if (!FAbertas.empty()) ++FAbertas.back().Parenteses;
                *escrita++ = c;
                break;
            }
            case clFecha:
                if (FAbertas.empty() || FAbertas.back().Parenteses > 0) {
                    if (!FAbertas.empty()) --FAbertas.back().Parenteses;
                    *escrita++ = c;
                    break;
                }
                anotar_escritos();
                FecharFuncao();
                escrita = ReservarSemFuncoes(static_cast<std::size_t>(fim - p));
                break;
        }
    }
    anotar_escritos();
    while (!FAbertas.empty()) FecharFuncao();
    if (FChamadas.TemErro()) FErro = FChamadas.BuscarPrimeiroErro();
    return {FSemFuncoes.data(), FEscritos};
}

/// Room for so many characters more; answers where they go.
char16_t* TAvaliador::ReservarSemFuncoes(std::size_t AQuantidade) {
    if (FSemFuncoes.size() < FEscritos + AQuantidade) FSemFuncoes.resize(FEscritos + AQuantidade);
    return FSemFuncoes.data() + FEscritos;
}

void TAvaliador::AbrirFuncao(TFuncCalc AFuncao) {
    if (!FAbertas.empty() && FAbertas.back().Separador == CNenhum && AFuncao >= FAbertas.back().Funcao)
        FAbertas.back().FuncaoAntesDoSeparador = true;
    FAbertas.push_back({.Funcao = AFuncao, .Chamada = FChamadas.Abrir(AFuncao), .Inicio = FEscritos});
}

/// The innermost open function ends where the text under construction ends: its number takes the place of its argument.
void TAvaliador::FecharFuncao() {
    const TAberta aberta = FAbertas.back();
    FAbertas.pop_back();
    FChamadas.Fechar(aberta.Chamada);
    const std::u16string_view argumento(FSemFuncoes.data() + aberta.Inicio, FEscritos - aberta.Inicio);
    Extended valor = 0;  // stands for the call after an error too, so that its neighbours do not meet
    bool antes_dos_argumentos = false;
    const auto sem_erro = [this] { return FErro.Motivo == meNenhum; };
    if (TemDoisArgumentos(aberta.Funcao)) {
        const std::size_t separador = aberta.Separador - aberta.Inicio;
        Extended um = 0;
        if (aberta.Separador == CNenhum || aberta.FuncaoAntesDoSeparador)
            FErro.Motivo = meDoisArgumentos;
        else if (!aberta.ErroAntesDoSeparador)
            um = CalcularSemFuncoes(argumento.substr(0, separador), nullptr);
        antes_dos_argumentos = !sem_erro();
        if (sem_erro() && !aberta.Erro)
            valor = CalcularFuncao(aberta.Funcao, um, CalcularSemFuncoes(argumento.substr(separador + 1), nullptr));
    } else if (!aberta.Erro) {
        valor = CalcularFuncao(aberta.Funcao, CalcularSemFuncoes(argumento, nullptr), 0);
    }
    const bool erro = aberta.Erro || !sem_erro();
    if (!sem_erro()) {
        FChamadas.RegistrarErro(aberta.Chamada, antes_dos_argumentos, std::exchange(FErro, {}));
        valor = 0;
    }
    if (erro && !FAbertas.empty()) {
        FAbertas.back().Erro = true;
        if (FAbertas.back().Separador == CNenhum) FAbertas.back().ErroAntesDoSeparador = true;
    }

    FEscritos = aberta.Inicio;
    std::array<char16_t, CTamanhoMaximoExtended> espaco;
    const std::u16string_view texto = EscreverExtended(valor, espaco, FRegras.SeparadorDecimal);
    char16_t* const escrita = ReservarSemFuncoes(texto.size());
    // A call that is resolved after this one finds the number in its argument and disregards a point there too.
    const bool sem_ponto = !FAbertas.empty() && FAbertas.back().Funcao > aberta.Funcao;
    FEscritos = static_cast<std::size_t>(
        std::copy_if(texto.begin(), texto.end(), escrita, [&](char16_t c) { return !sem_ponto || c != u'.'; }) -
        FSemFuncoes.data());
}

std::u16string_view TAvaliador::ResolverVariaveis(std::u16string_view AFormula) {
    const auto eh_variavel = [this](char16_t c) { return FRegras.EhVariavel(c); };
    auto p = std::find_if(AFormula.begin(), AFormula.end(), eh_variavel);
    if (p == AFormula.end()) return AFormula;

    FSemVariaveis.clear();
    auto copiado = AFormula.begin();
    while (p != AFormula.end()) {
        FSemVariaveis.append(copiado, p);
        const auto fim_do_nome = std::find_if(p, AFormula.end(), [&](char16_t c) {
            return !eh_variavel(c) && !EhDigito(c) && c != FRegras.SeparadorDecimal;
        });
        if (!SubstituirVariavel({p, fim_do_nome}, AFormula.size())) return {};
        copiado = fim_do_nome;
        p = std::find_if(fim_do_nome, AFormula.end(), eh_variavel);
    }
    FSemVariaveis.append(copiado, AFormula.end());
    return FSemVariaveis;
}

/// Appends what stands for the variable; false with the error set when nothing does. The scan goes on at the start of
/// the value, so that the "E" of an exponent is a name again; what follows that name waits in FRestos.
bool TAvaliador::SubstituirVariavel(std::u16string_view ANome, std::size_t ATamanhoDaFormula) {
    FRestos.clear();
    while (true) {
        const std::u16string_view texto = Variaveis.BuscarTexto(ANome, FErro);
        if (FErro.Motivo != meNenhum) return false;
        const std::size_t e = texto.find(u'E');
        FSemVariaveis += texto.substr(0, e);
        if (e == CNenhum) break;
        if (FSemVariaveis.size() > ATamanhoDaFormula * CCrescimento + CCrescimentoMinimo) {
            FErro.Motivo = meSemFim;
            return false;
        }
        const std::size_t fim_do_nome = std::min(texto.find(u'-', e), texto.size());
        FRestos.push_back(texto.substr(fim_do_nome));
        ANome = texto.substr(e, fim_do_nome - e);
    }
    for (; !FRestos.empty(); FRestos.pop_back()) FSemVariaveis += FRestos.back();
    return true;
}

std::u16string_view TAvaliador::ResolverDuploSinalNegativo(std::u16string_view AFormula) {
    const std::u16string_view duplo = TOryUtilsFormulas::GetDuploSinalNegativo();
    std::size_t posicao = AFormula.find(duplo);
    if (posicao == CNenhum) return AFormula;
    FSemDuplos.clear();
    std::size_t copiado = 0;
    for (; posicao != CNenhum; posicao = AFormula.find(duplo, copiado)) {
        FSemDuplos.append(AFormula, copiado, posicao - copiado);
        FSemDuplos += u'+';
        copiado = posicao + duplo.size();
    }
    FSemDuplos.append(AFormula, copiado);
    return FSemDuplos;
}

std::u16string_view TAvaliador::ResolverParenteses(std::u16string_view AFormula) {
    const std::size_t primeiro = AFormula.find(u'(');
    if (primeiro == CNenhum) return AFormula;
    FSemParenteses.assign(AFormula, 0, primeiro);
    FParenteses.clear();
    for (const char16_t c : AFormula.substr(primeiro)) {
        if (c == u'(')
            FParenteses.push_back(FSemParenteses.size());
        else if (c == u')' && !FParenteses.empty()) {
            if (!FecharParentese()) return {};
        } else
            FSemParenteses += c;
    }
    while (!FParenteses.empty())
        if (!FecharParentese()) return {};
    return FSemParenteses;
}

bool TAvaliador::FecharParentese() {
    const std::size_t inicio = FParenteses.back();
    FParenteses.pop_back();
    const Extended valor = CalcularExpressao(std::u16string_view(FSemParenteses).substr(inicio));
    if (FErro.Motivo != meNenhum) return false;
    std::array<char16_t, CTamanhoMaximoExtended> texto;
    FSemParenteses.resize(inicio);
    FSemParenteses += EscreverExtended(valor, texto, FRegras.SeparadorDecimal);
    return true;
}

}  // namespace OryUtils::Interno
