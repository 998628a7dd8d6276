#include "oryutils/readers/LeitorReg.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/readers/DadoReg.hpp"
#include "oryutils/readers/LinhasReg.hpp"
#include "oryutils/readers/NomesRegistro.hpp"

namespace OryUtils::Interno {
namespace {

// Blanks and perhaps a comment, then the end of the line.
bool AcabaALinha(std::u16string_view ATexto, std::size_t APosicao) {
    APosicao = PularEspacos(ATexto, APosicao);
    return APosicao == ATexto.size() || EhFimDeLinha(ATexto[APosicao]) || ATexto[APosicao] == u';';
}

bool PossuiParteVazia(std::u16string_view ACaminho) {
    return ACaminho.empty() || ACaminho.front() == u'\\' || ACaminho.back() == u'\\' ||
           ACaminho.find(u"\\\\") != ACaminho.npos;
}

// ALinha.Inicio stands at the opening bracket; the last closing one of the line counts, since names may have more.
void LerChave(std::u16string_view ATexto, std::size_t AInicio, TLinhaReg& ALinha) {
    ALinha.Elemento = elChaveIlegivel;
    std::u16string_view linha = ATexto.substr(AInicio, ALinha.Fim - AInicio);
    const std::size_t fim = linha.rfind(u']');
    if (fim == linha.npos || !AcabaALinha(linha, fim + 1)) return;
    std::u16string_view nome = linha.substr(1, fim - 1);
    const bool apagada = nome.starts_with(u'-');
    if (apagada) nome.remove_prefix(1);
    if (PossuiParteVazia(nome) || !EhCaminhoValido(nome)) return;
    ALinha.Elemento = apagada ? elChaveApagada : elChave;
    ALinha.Nome = nome;
}

void LerValor(std::u16string_view ATexto, std::size_t AInicio, TLinhaReg& ALinha) {
    std::size_t posicao = AInicio + 1;
    if (ATexto[AInicio] == u'"') {
        posicao = BuscarFimDoTextoReg(ATexto, AInicio);
        if (posicao == ATexto.npos) return;
        ALinha.Nome = ATexto.substr(AInicio + 1, posicao - AInicio - 2);
    }
    posicao = PularEspacos(ATexto, posicao);
    if (posicao == ATexto.size() || ATexto[posicao] != u'=') return;
    posicao = PularEspacos(ATexto, posicao + 1);
    const bool apagado = posicao < ATexto.size() && ATexto[posicao] == u'-';
    const std::size_t fim = apagado ? posicao + 1 : BuscarFimDoDadoReg(ATexto, posicao);
    if (fim == ATexto.npos || !AcabaALinha(ATexto, fim)) return;
    ALinha.Elemento = apagado ? elValorApagado : elValor;
    ALinha.InicioDado = posicao;
    ALinha.FimDado = fim;
    ALinha.Fim = BuscarProximaLinha(ATexto, fim);
}

}  // namespace

bool TLeitorReg::Ler(TLinhaReg& ALinha) noexcept {
    if (FPosicao >= FTexto.size()) return false;
    ALinha = {.Inicio = FPosicao, .Fim = BuscarProximaLinha(FTexto, FPosicao)};
    const std::size_t inicio = PularEspacos(FTexto, FPosicao);
    const char16_t primeiro = inicio < FTexto.size() ? FTexto[inicio] : u'\n';
    if (EhFimDeLinha(primeiro))
        ALinha.Elemento = elLinhaEmBranco;
    else if (primeiro == u'[')
        LerChave(FTexto, inicio, ALinha);
    else if (primeiro == u'"' || primeiro == u'@')
        LerValor(FTexto, inicio, ALinha);
    FPosicao = ALinha.Fim;
    return true;
}

std::u16string RetirarEscapes(std::u16string_view ATexto) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        if (ATexto[i] == u'\\') ++i;
        resultado += ATexto[i];
    }
    return resultado;
}

bool EscapadoDizNome(std::u16string_view ATexto, std::u16string_view ANome) noexcept {
    std::size_t n = 0;
    for (std::size_t i = 0; i < ATexto.size(); ++i, ++n) {
        if (ATexto[i] == u'\\') ++i;
        if (n == ANome.size() || MinusculaDe(ATexto[i]) != MinusculaDe(ANome[n])) return false;
    }
    return n == ANome.size();
}

}  // namespace OryUtils::Interno
