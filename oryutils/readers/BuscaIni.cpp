#include "oryutils/readers/BuscaIni.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr std::size_t CMaiorLinha = 65536;
constexpr std::string_view CMarcaUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view CMarcaUtf16Baixo = "\xFF\xFE";
constexpr std::string_view CMarcaUtf16Alto = "\xFE\xFF";

std::u16string_view RetirarAspas(std::u16string_view AValor) {
    const bool entre =
        AValor.size() >= 2 && AValor.front() == AValor.back() && (AValor.front() == u'"' || AValor.front() == u'\'');
    return entre ? AValor.substr(1, AValor.size() - 2) : AValor;
}

}  // namespace

TBuscaIni::TBuscaIni(std::u16string_view ASecao, std::u16string_view AChave)
    : FSecao(MinusculaDe(Aparar(ASecao))), FChave(MinusculaDe(Aparar(AChave))) {}

void TBuscaIni::Receber(std::string_view ABytes) {
    if (FCodificacao == coDesconhecida) {
        const std::size_t faltam = std::min(ABytes.size(), CMarcaUtf8.size() - FInicio.size());
        FInicio += ABytes.substr(0, faltam);
        ABytes.remove_prefix(faltam);
        if (FInicio.size() < CMarcaUtf8.size()) return;
        DecidirCodificacao();
    }
    for (const char byte : ABytes) {
        if (FValor) return;
        ReceberByte(byte);
    }
}

void TBuscaIni::Terminar() {
    if (FCodificacao == coDesconhecida) DecidirCodificacao();
    TerminarLinha();
}

void TBuscaIni::DecidirCodificacao() {
    std::string_view resto = FInicio;
    std::string_view marca;
    FCodificacao = coOitoBits;
    if (resto.starts_with(CMarcaUtf8)) {
        marca = CMarcaUtf8;
    } else if (resto.starts_with(CMarcaUtf16Baixo)) {
        marca = CMarcaUtf16Baixo;
        FCodificacao = coUtf16Baixo;
    } else if (resto.starts_with(CMarcaUtf16Alto)) {
        marca = CMarcaUtf16Alto;
        FCodificacao = coUtf16Alto;
    }
    resto.remove_prefix(marca.size());
    for (const char byte : resto) ReceberByte(byte);
}

void TBuscaIni::ReceberByte(char AByte) {
    const auto byte = static_cast<unsigned char>(AByte);
    if (FCodificacao == coOitoBits) return ReceberUnidade(byte);
    if (!FMeiaUnidade) {
        FMeiaUnidade = AByte;
        return;
    }
    const auto primeiro = static_cast<unsigned char>(*FMeiaUnidade);
    FMeiaUnidade.reset();
    const bool baixo = FCodificacao == coUtf16Baixo;
    ReceberUnidade(static_cast<char16_t>(baixo ? byte << 8 | primeiro : primeiro << 8 | byte));
}

void TBuscaIni::ReceberUnidade(char16_t AUnidade) {
    if (AUnidade == u'\r' || AUnidade == u'\n')
        TerminarLinha();
    else if (FLinha.size() < CMaiorLinha)
        FLinha += AUnidade;
}

void TBuscaIni::TerminarLinha() {
    if (FValor) return;
    if (FCodificacao == coOitoBits) {
        std::string bytes;
        for (const char16_t unidade : FLinha) bytes += static_cast<char>(unidade);
        TratarLinha(EhUtf8Valido(bytes) ? DeUtf8(bytes) : DeWindows1252(bytes));
    } else {
        TratarLinha(FLinha);
    }
    FLinha.clear();
}

void TBuscaIni::TratarLinha(std::u16string_view ALinha) {
    ALinha = Aparar(ALinha);
    if (ALinha.starts_with(u'[')) {
        const std::size_t fecha = ALinha.find(u']');
        if (fecha != ALinha.npos) FNaSecao = MinusculaDe(Aparar(ALinha.substr(1, fecha - 1))) == FSecao;
        return;
    }
    const std::size_t igual = ALinha.find(u'=');
    if (!FNaSecao || igual == ALinha.npos || ALinha.starts_with(u';')) return;
    if (MinusculaDe(Aparar(ALinha.substr(0, igual))) == FChave) FValor = RetirarAspas(Aparar(ALinha.substr(igual + 1)));
}

}  // namespace OryUtils
