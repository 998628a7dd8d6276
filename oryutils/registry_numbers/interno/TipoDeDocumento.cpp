#include "oryutils/registry_numbers/interno/TipoDeDocumento.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/interno/UnidadesFederativas.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr bool EhMarca(char16_t c) noexcept { return c == u'.' || c == u'-' || c == u'/'; }

/// "A" to "Z" for a letter in either case, "0" to "9"; 0 for anything else.
constexpr char LerCaractere(char16_t c) noexcept {
    const std::int16_t valor = c < 128 ? ValorDe(c) : CSemValor;
    return valor == CSemValor ? '\0' : static_cast<char>('0' + valor);
}

TMotivoRecusa LerNumeroLimpo(TLeitura ALeitura, std::u16string_view ATexto, TNumeroLimpo& ANumero) noexcept {
    for (const char16_t c : ATexto) {
        if (EhBranco(c) || EhMarca(c)) continue;
        const std::string_view lido = ANumero;
        if (ALeitura == leTelefone && (c == u'(' || c == u')')) continue;
        const bool mais = ALeitura == leTelefone && c == u'+' && lido.empty() && ATexto.front() == u'+';
        const char caractere = mais ? '+' : LerCaractere(c);
        if (caractere == '\0' || (caractere > '9' && ALeitura != leLetras)) return mrCaractere;
        if (!ANumero.Juntar(caractere)) return mrTamanho;
    }
    return std::string_view(ANumero).empty() ? mrVazio : mrNenhum;
}

const TUnidadeFederativa* LerUf(std::u16string_view ASigla) noexcept {
    if (ASigla.size() != 2) return nullptr;
    const char sigla[]{LerCaractere(ASigla[0]), LerCaractere(ASigla[1])};
    const auto uf = std::ranges::find(CUnidadesFederativas, std::string_view(sigla, 2), &TUnidadeFederativa::Sigla);
    return uf == std::end(CUnidadesFederativas) ? nullptr : uf;
}

TMotivoRecusa LerContexto(TUsoDoContexto AUso, std::u16string_view AContexto, const TUnidadeFederativa*& AUf) noexcept {
    if (AUso == ucNenhum) return mrNenhum;
    const std::u16string_view sigla = Aparar(AContexto);
    if (sigla.empty()) return AUso == ucUf ? mrContexto : mrNenhum;
    AUf = LerUf(sigla);
    return AUf ? mrNenhum : mrUf;
}

bool EhRepetido(TRepetidos ARegra, std::string_view ANumero) noexcept {
    if (ARegra == rpValem || (ARegra == rpZerosNao && ANumero.front() != '0')) return false;
    return ANumero.find_first_not_of(ANumero.front()) == ANumero.npos;
}

}  // namespace

std::string TSorteioDeDocumento::Digitos(std::size_t AQuantos) {
    std::string digitos(AQuantos, '0');
    for (char& c : digitos) c = static_cast<char>('0' + Entre(0, 9));
    return digitos;
}

std::string TSorteioDeDocumento::Letras(std::size_t AQuantas) {
    std::string letras(AQuantas, 'A');
    for (char& c : letras) c = static_cast<char>('A' + Entre(0, 25));
    return letras;
}

const TTipoDeDocumento* BuscarTipoDeDocumento(std::u16string_view ANome) noexcept {
    const auto tipos = BuscarTiposDeDocumento();
    const auto achado = std::ranges::find_if(
        tipos, [&](const TTipoDeDocumento& ATipo) { return std::ranges::equal(ATipo.Nome, ANome); });
    return achado == tipos.end() ? nullptr : &*achado;
}

TMotivoRecusa ConferirFormatos(std::span<const TFormatoDocumento> AFormatos, std::string_view ANumero,
                               const TFormatoDocumento** AFormato) noexcept {
    const TNumeroLido lido = LerNumero(ANumero, [](char) { return false; });
    if (!AFormato) return Conferir(AFormatos, lido);
    for (const TFormatoDocumento& formato : AFormatos) {
        if (Conferir(formato, lido) != mrNenhum) continue;
        *AFormato = &formato;
        return mrNenhum;
    }
    return mrTamanho;
}

TMotivoRecusa ConferirDocumento(const TTipoDeDocumento& ATipo, std::u16string_view ANumero,
                                std::u16string_view AContexto, TDocumentoLido& ALido) noexcept {
    ALido.Texto = Aparar(ANumero);
    if (ALido.Texto.empty()) return mrVazio;
    TMotivoRecusa motivo = LerContexto(ATipo.Contexto, AContexto, ALido.Uf);
    if (motivo != mrNenhum) return motivo;
    if (ATipo.Leitura == leTexto) return ATipo.Conferir(ALido);
    motivo = LerNumeroLimpo(ATipo.Leitura, ALido.Texto, ALido.Numero);
    if (motivo != mrNenhum) return motivo;
    motivo = ATipo.Conferir ? ATipo.Conferir(ALido) : ConferirFormatos(ATipo.Formatos, ALido.Numero);
    // A number of the right length that repeats one character says so, also where its digits would be right.
    return motivo != mrTamanho && EhRepetido(ATipo.Repetidos, ALido.Numero) ? mrRepetido : motivo;
}

std::string GerarDosFormatos(std::span<const TFormatoDocumento> AFormatos, TSorteioDeDocumento& ASorteio) {
    // Some numbers have no right digit: another one is drawn.
    for (;;) {
        const TFormatoDocumento& formato =
            AFormatos[static_cast<std::size_t>(ASorteio.Entre(0, static_cast<int>(AFormatos.size()) - 1))];
        std::string numero = ASorteio.Digitos(formato.Tamanho);
        for (std::size_t i = 0; i < numero.size(); ++i)
            if (formato.MaiorValor[i] > 9 && ASorteio.Entre(0, 1)) numero[i] = ASorteio.Letras(1)[0];
        for (const TExigencia& exigencia : formato.Exigencias) {
            if (exigencia.Quantas == 0) continue;
            const auto& faixa =
                exigencia.Faixas[static_cast<std::size_t>(ASorteio.Entre(0, static_cast<int>(exigencia.Quantas) - 1))];
            const std::string inicio = std::to_string(ASorteio.Entre(faixa.De, faixa.Ate));
            numero.replace(exigencia.Lugar - 1, exigencia.Largura,
                           std::string(exigencia.Largura - inicio.size(), '0') + inicio);
        }
        for (const TDigitoVerificador& digito : formato.Digitos) {
            if (digito.Lugar == 0) continue;
            const TNumeroLido lido = LerNumero(std::string_view(numero), [](char) { return false; });
            numero[digito.Lugar - 1] = static_cast<char>('0' + CalcularDigito(digito, lido));
        }
        if (ConferirFormatos(AFormatos, numero) == mrNenhum && numero.find_first_not_of(numero[0]) != numero.npos)
            return numero;
    }
}

}  // namespace OryUtils::Interno
