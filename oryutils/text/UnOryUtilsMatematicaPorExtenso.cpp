// Amounts of money in words.
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include <cmath>
#include <utility>

namespace OryUtils {
namespace {

// The words of the numbers as printed since the first version: TRES has no accent and 14 is CATORZE.
// clang-format off
constexpr std::u16string_view CUnidades[]{
    u"", u"UM", u"DOIS", u"TRES", u"QUATRO", u"CINCO", u"SEIS", u"SETE", u"OITO", u"NOVE", u"DEZ",
    u"ONZE", u"DOZE", u"TREZE", u"CATORZE", u"QUINZE", u"DEZESSEIS", u"DEZESSETE", u"DEZOITO", u"DEZENOVE"};
constexpr std::u16string_view CDezenas[]{
    u"", u"DEZ", u"VINTE", u"TRINTA", u"QUARENTA", u"CINQUENTA", u"SESSENTA", u"SETENTA", u"OITENTA", u"NOVENTA"};
constexpr std::u16string_view CCentenas[]{
    u"", u"CENTO", u"DUZENTOS", u"TREZENTOS", u"QUATROCENTOS", u"QUINHENTOS", u"SEISCENTOS", u"SETECENTOS",
    u"OITOCENTOS", u"NOVECENTOS"};
// clang-format on

/// Appends the words of AGrupo, 0 to 999; none for 0.
void AcrescentarGrupo(std::u16string& ATexto, unsigned AGrupo) {
    const unsigned dezena = AGrupo % 100;
    if (AGrupo == 100) {
        ATexto += u"CEM";
        return;
    }
    ATexto += CCentenas[AGrupo / 100];
    if (AGrupo > 100 && dezena > 0) ATexto += u" E ";
    if (dezena < 20) {
        ATexto += CUnidades[dezena];
        return;
    }
    ATexto += CDezenas[dezena / 10];
    if (dezena % 10 > 0) (ATexto += u" E ") += CUnidades[dezena % 10];
}

/// The whole part of AValor, rounded to cents, in groups of three digits from the right; then the cents.
std::vector<unsigned> SepararGrupos(Extended AValor) {
    // From this amount on the cents play no part in the words.
    constexpr Extended CPrimeiroSemCentavos = 1e16L;
    const std::u16string digitos = AValor < CPrimeiroSemCentavos
                                       ? FormatarNumero(u"0.00", AValor, BuscarFormatosBrasileiros())
                                       : FormatarZeros(AValor, 1) + u",00";
    std::size_t ateVirgula = digitos.size() - std::u16string_view(u",00").size();
    std::vector<unsigned> grupos;
    for (const char16_t c : digitos) {
        if (c == u',' || grupos.empty() || (ateVirgula > 0 && ateVirgula % 3 == 0)) grupos.push_back(0);
        if (ateVirgula > 0) --ateVirgula;
        if (c != u',') grupos.back() = grupos.back() * 10 + static_cast<unsigned>(c - u'0');
    }
    return grupos;
}

/// Only these amounts take " DE " before the currency.
bool PedeDe(std::int32_t AInteiro) noexcept {
    return AInteiro == 1'000'000 || AInteiro == 10'000'000 || AInteiro == 100'000'000 || AInteiro == 1'000'000'000;
}

}  // namespace

std::u16string TConverterPorExtenso::BuscarValorPorExtenso() const {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return BuscarValorPorExtenso(); });
    if (FValor == 0) return u"ZERO " + FMoedaNoPlural;

    const std::vector<unsigned> grupos = SepararGrupos(FValor);
    auto grupo = grupos.begin();
    std::u16string texto;
    const auto acrescentar = [&](std::u16string_view AJuncao, std::u16string_view ANome, std::u16string_view ANomes) {
        if (*grupo != 0) {
            if (!texto.empty()) texto += AJuncao;
            AcrescentarGrupo(texto, *grupo);
            texto += *grupo == 1 ? ANome : ANomes;
        }
        ++grupo;
    };
    if (grupos.size() > 4) acrescentar(u"", u" BILHÃO", u" BILHÕES");
    if (grupos.size() > 3) acrescentar(u", ", u" MILHÃO", u" MILHÕES");
    if (grupos.size() > 2) acrescentar(u", ", u" MIL", u" MIL");
    acrescentar(u" E ", u"", u"");

    // The words above come from the rounded amount, the currency from the low 32 bits of the amount itself.
    const auto inteiro = static_cast<std::int32_t>(static_cast<std::int64_t>(std::fmod(FValor, 0x1p32L)));
    if (inteiro != 0) {
        texto += PedeDe(inteiro) ? u" DE " : u" ";
        texto += inteiro == 1 ? FMoedaNoSingular : FMoedaNoPlural;
    }
    if (*grupo != 0) {
        if (inteiro > 0) texto += u" E ";
        AcrescentarGrupo(texto, *grupo);
        texto += *grupo == 1 ? u" CENTAVO" : u" CENTAVOS";
        if (inteiro == 0) (texto += u" DE ") += FMoedaNoSingular;
    }
    return texto;
}

std::u16string TConverterPorExtenso::TratarGrupo(std::u16string_view AGrupo) const {
    const int valor = TextoParaInt(AGrupo);
    std::u16string texto;
    if (valor >= 0 && valor <= 999) AcrescentarGrupo(texto, static_cast<unsigned>(valor));
    return texto;
}

void TConverterPorExtenso::SetValor(Extended AValor) {
    if (AValor == FValor) return;
    if (AValor < 0) throw Exception(u"O valor deve ser sempre maior ou igual a 0,00");
    if (!std::isfinite(AValor)) throw EConvertError(u"'" + ExtendedParaTexto(AValor) + u"' não é um valor válido");
    const Extended anterior = std::exchange(FValor, AValor);
    try {
        FTexto = BuscarValorPorExtenso();
    } catch (...) {
        FValor = anterior;
        throw;
    }
}

const std::u16string& TConverterPorExtenso::GetTexto() const {
    if (!FTexto) FTexto = BuscarValorPorExtenso();
    return *FTexto;
}

}  // namespace OryUtils
