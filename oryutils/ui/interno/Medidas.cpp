#include "oryutils/ui/interno/Medidas.hpp"

#include <algorithm>
#include <limits>
#include <string_view>

namespace OryUtils {
namespace {

constexpr std::u16string_view CLetras = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int CLarguraMinimaEmPixels = 75;
constexpr int CPixelsPorPolegadaBase = 96;
// Frame and title bar of a window, in average characters; generous, so that the last row always shows.
constexpr int CMolduraHorizontal = 4;
constexpr int CMolduraVertical = 3;
// A longer caption counts as this long, so that positions cannot overflow.
constexpr std::size_t CLimiteCaption = std::size_t{1} << 24;
// Only so many characters of a label are measured: no screen shows more.
constexpr std::size_t CLimiteMedido = 65536;

}  // namespace

int DividirArredondando(long long ANumerador, long long ADenominador) {
    long long quociente = ANumerador / ADenominador;
    const long long dobro = ANumerador % ADenominador * 2;
    if (dobro > ADenominador || (dobro == ADenominador && quociente % 2 != 0)) ++quociente;
    return static_cast<int>(std::min<long long>(quociente, std::numeric_limits<int>::max()));
}

int CalcularLarguraBotao(int APontos, std::size_t ACaracteres) {
    const auto caracteres = static_cast<long long>(std::min(ACaracteres, CLimiteCaption));
    return std::max(CLarguraMinimaEmPixels, DividirArredondando(APontos * caracteres * 8, 11));
}

TTamanho MedirCaractere(const TToolkit& AToolkit) {
    const TTamanho medido = AToolkit.MedirTexto(CLetras, 0);
    return {medido.Largura / static_cast<int>(CLetras.size()), medido.Altura};
}

int TUnidades::Escalar(int APixels) const {
    return DividirArredondando(1LL * std::max(APixels, 0) * FPixelsPorPolegada, CPixelsPorPolegadaBase);
}

TTamanho BuscarAreaUtil(const TToolkit& AToolkit) {
    const TRetangulo area = AToolkit.GetAreaDeTrabalho();
    const TTamanho caractere = MedirCaractere(AToolkit);
    return {std::max(1, area.Width - CMolduraHorizontal * caractere.Largura),
            std::max(1, area.Height - CMolduraVertical * caractere.Altura)};
}

TTamanho MedirTextoLimitado(const TToolkit& AToolkit, std::u16string_view ATexto, TTamanho AMaximo) {
    TTamanho medido = AToolkit.MedirTexto(ATexto.substr(0, CLimiteMedido), AMaximo.Largura);
    if (ATexto.size() > CLimiteMedido) medido.Altura = AMaximo.Altura + 1;
    return medido;
}

}  // namespace OryUtils
