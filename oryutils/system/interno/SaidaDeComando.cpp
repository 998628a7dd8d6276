#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <utility>

namespace OryUtils::Interno {
namespace {

template <typename TLetra>
bool EhQuebra(TLetra ALetra) {
    return ALetra == '\r' || ALetra == '\n';
}

// Calls AAcao for each line of ATexto; what stands behind the last line break is a line too.
template <typename TLetra, typename TAcao>
void PercorrerLinhas(std::basic_string_view<TLetra> ATexto, TAcao AAcao) {
    while (true) {
        const auto quebra = std::find_if(ATexto.begin(), ATexto.end(), EhQuebra<TLetra>);
        const auto tamanho = static_cast<std::size_t>(quebra - ATexto.begin());
        AAcao(ATexto.substr(0, tamanho));
        if (quebra == ATexto.end()) return;
        ATexto.remove_prefix(tamanho);
        const bool dupla = ATexto.size() > 1 && ATexto[0] == '\r' && ATexto[1] == '\n';
        ATexto.remove_prefix(dupla ? 2 : 1);
    }
}

// As PercorrerLinhas, by searches that are quicker where lines are long.
template <typename TAcao>
void PercorrerLinhasDeBytes(std::string_view ABytes, TAcao AAcao) {
    const auto percorrer = [&](std::string_view ATrecho) {
        if (ATrecho.find('\r') != ATrecho.npos)
            PercorrerLinhas(ATrecho, AAcao);
        else
            AAcao(ATrecho);
    };
    for (std::size_t quebra = 0; (quebra = ABytes.find('\n')) != ABytes.npos; ABytes.remove_prefix(quebra + 1))
        percorrer(ABytes.substr(0, quebra > 0 && ABytes[quebra - 1] == '\r' ? quebra - 1 : quebra));
    percorrer(ABytes);
}

std::string_view ApararBytes(std::string_view ABytes) {
    const auto branco = [](char AByte) { return EhBranco(static_cast<unsigned char>(AByte)); };
    while (!ABytes.empty() && branco(ABytes.front())) ABytes.remove_prefix(1);
    while (!ABytes.empty() && branco(ABytes.back())) ABytes.remove_suffix(1);
    return ABytes;
}

// Blocks of this many characters are what the compiler turns into few instructions.
constexpr std::size_t CBloco = 16;

// By way of copies of its own: characters written through a pointer might be the bytes still to be read.
void AlargarBloco(const char* ABytes, char16_t* ADestino) {
    std::array<unsigned char, CBloco> bytes;
    std::array<char16_t, CBloco> texto;
    std::memcpy(bytes.data(), ABytes, sizeof bytes);
    for (std::size_t i = 0; i < CBloco; ++i) texto[i] = bytes[i];
    std::memcpy(ADestino, texto.data(), sizeof texto);
}

// Writes ABytes, which are ASCII, as characters; the end of what was written.
char16_t* Alargar(std::string_view ABytes, char16_t* ADestino) {
    const std::size_t tamanho = ABytes.size();
    if (tamanho < CBloco) return std::copy(ABytes.begin(), ABytes.end(), ADestino);
    for (std::size_t i = 0; i + CBloco <= tamanho; i += CBloco) AlargarBloco(ABytes.data() + i, ADestino + i);
    // The last block reaches back into the one before it.
    AlargarBloco(ABytes.data() + tamanho - CBloco, ADestino + tamanho - CBloco);
    return ADestino + tamanho;
}

/// What a run of bytes is made of.
struct TFeitio {
    bool Ascii;            // and no zero byte
    bool QuebrasInteiras;  // every CR stands before an LF and every LF behind a CR
};

// ABytes, which are not empty, begin and end where chunks do, so that half a line break at an end does not count: it is
// trimmed.
TFeitio Examinar(std::string_view ABytes) {
    std::array<unsigned char, CBloco> fora{};
    std::array<unsigned char, CBloco> soltas{};
    const auto examinar = [&](const char* AByte, std::size_t AIndice) {
        const auto anterior = static_cast<unsigned char>(AByte[-1]);
        const auto byte = static_cast<unsigned char>(*AByte);
        // Zero and what lies beyond ASCII both have the upper bit, or get it when one is taken away.
        fora[AIndice] = static_cast<unsigned char>(fora[AIndice] | static_cast<unsigned char>(byte - 1) | byte);
        soltas[AIndice] = static_cast<unsigned char>(soltas[AIndice] | ((anterior == '\r') ^ (byte == '\n')));
    };
    std::size_t feitos = 1;
    for (; feitos + CBloco <= ABytes.size(); feitos += CBloco)
        for (std::size_t i = 0; i < CBloco; ++i) examinar(ABytes.data() + feitos + i, i);
    for (; feitos < ABytes.size(); ++feitos) examinar(ABytes.data() + feitos, 0);
    const auto ascii = [](unsigned char AByte) { return AByte < 0x80; };
    const auto primeiro = static_cast<unsigned char>(ABytes.front());
    return {primeiro > 0 && ascii(primeiro) && std::ranges::all_of(fora, ascii),
            std::ranges::all_of(soltas, [](unsigned char AByte) { return AByte == 0; })};
}

// Calls AAcao for each chunk of APartes, trimmed.
template <typename TAcao>
void PercorrerPartes(std::string_view APartes, TAcao AAcao) {
    constexpr std::size_t CParte = TSaidaDeComando::CTamanhoDaParte;
    for (std::size_t i = 0; i < APartes.size(); i += CParte) AAcao(ApararBytes(APartes.substr(i, CParte)));
}

}  // namespace

void TSaidaEmLista::Continuar(std::u16string_view ATexto) {
    Abrir();
    if (FLinhas.empty())
        FLinhas.emplace_back(ATexto);
    else
        FLinhas.back().append(ATexto);
}

// A long list seldom moves: all its lines would move with it.
void TSaidaEmLista::NovaLinha(std::u16string_view ATexto) {
    constexpr std::size_t CListaLonga = std::size_t{1} << 14;
    if (FLinhas.size() == FLinhas.capacity() && FLinhas.size() >= CListaLonga) {
        try {
            FLinhas.reserve(FLinhas.size() * Interno::BuscarFatorDeCrescimento());
        } catch (const std::bad_alloc&) {  // it grows as far as it needs to
        }
    }
    FLinhas.emplace_back(ATexto);
}

void TSaidaEmLista::ContinuarAscii(std::string_view APartes, bool /*AQuebrasInteiras*/) {
    std::array<char16_t, TSaidaDeComando::CTamanhoDoGrupo> texto;
    char16_t* inicio = texto.data();  // of the line that may go on in the next chunk
    char16_t* fim = inicio;
    bool nada = true;
    bool primeira = true;
    const auto entregar = [&] {
        const std::u16string_view linha(inicio, fim);
        if (std::exchange(primeira, false))
            Continuar(linha);
        else
            NovaLinha(linha);
        inicio = fim;
    };
    PercorrerPartes(APartes, [&](std::string_view AParte) {
        if (AParte.empty()) {
            if (nada) ParteVazia();  // what a chunk has left behind never ends with a line break
            return;
        }
        nada = false;
        bool continua = true;
        PercorrerLinhasDeBytes(AParte, [&](std::string_view ALinha) {
            if (!std::exchange(continua, false)) entregar();
            fim = Alargar(ALinha, fim);
        });
    });
    if (!nada) entregar();
}

// A list does not tell a text that ends with a line break from one that does not: setting it drops the break.
void TSaidaEmLista::ParteVazia() {
    Abrir();
    if (!FLinhas.empty() && FLinhas.back().empty()) FLinhas.pop_back();
}

void TSaidaEmLista::Abrir() {
    if (std::exchange(FAberta, true)) return;
    const auto possui_quebra = [](const std::u16string& ALinha) {
        return std::ranges::any_of(ALinha, EhQuebra<char16_t>);
    };
    if (std::ranges::none_of(FLinhas, possui_quebra)) return;
    std::vector<std::u16string> linhas;
    PercorrerLinhas(std::u16string_view(JuntarLinhas(FLinhas)),
                    [&](std::u16string_view ALinha) { linhas.emplace_back(ALinha); });
    FLinhas = std::move(linhas);
}

void TSaidaEmTexto::Continuar(std::u16string_view ATexto) {
    FMemoria.Preparar(FTexto, ATexto.size());
    FTexto.append(ATexto);
}

void TSaidaEmTexto::ContinuarAscii(std::string_view APartes, bool AQuebrasInteiras) {
    std::array<char16_t, 2 * TSaidaDeComando::CTamanhoDoGrupo> texto;  // all of it line breaks
    char16_t* fim = texto.data();
    PercorrerPartes(APartes, [&](std::string_view AParte) {
        if (AQuebrasInteiras) {
            fim = Alargar(AParte, fim);
            return;
        }
        PercorrerLinhasDeBytes(AParte, [&](std::string_view ALinha) {
            fim = Alargar(ALinha, fim);
            *fim++ = u'\r';
            *fim++ = u'\n';
        });
        fim -= 2;
    });
    FMemoria.Preparar(FTexto, static_cast<std::size_t>(fim - texto.data()));
    FTexto.append(texto.data(), fim);
}

TSaidaDeComando::TSaidaDeComando(TDestinoDaSaida& ADestino, TDecodificador ADecodificador)
    : FDestino(ADestino), FDecodificador(std::move(ADecodificador)) {
    FResto.reserve(CTamanhoDaParte);
}

void TSaidaDeComando::Receber(std::string_view ABytes) {
    if (!FResto.empty()) {
        const std::size_t falta = std::min(CTamanhoDaParte - FResto.size(), ABytes.size());
        FResto.append(ABytes.substr(0, falta));
        ABytes.remove_prefix(falta);
        if (FResto.size() == CTamanhoDaParte) FecharParte();
    }
    while (ABytes.size() >= CTamanhoDaParte) {
        const std::size_t grupo = std::min(ABytes.size() / CTamanhoDaParte * CTamanhoDaParte, CTamanhoDoGrupo);
        ReceberGrupo(ABytes.substr(0, grupo));
        ABytes.remove_prefix(grupo);
    }
    FResto.append(ABytes);
}

void TSaidaDeComando::FecharParte() {
    if (!FResto.empty()) ReceberGrupo(FResto);
    FResto.clear();
}

void TSaidaDeComando::ReceberGrupo(std::string_view APartes) {
    const TFeitio feitio = Examinar(APartes);
    if (feitio.Ascii) return FDestino.ContinuarAscii(APartes, feitio.QuebrasInteiras);
    for (std::size_t i = 0; i < APartes.size(); i += CTamanhoDaParte) ReceberParte(APartes.substr(i, CTamanhoDaParte));
}

void TSaidaDeComando::ReceberParte(std::string_view ABytes) {
    const std::u16string decodificado = FDecodificador(ABytes.substr(0, ABytes.find('\0')));
    const std::u16string_view aparado = Aparar(decodificado);
    if (aparado.empty()) return FDestino.ParteVazia();
    bool primeira = true;
    PercorrerLinhas(aparado, [&](std::u16string_view ALinha) {
        if (std::exchange(primeira, false))
            FDestino.Continuar(ALinha);
        else
            FDestino.NovaLinha(ALinha);
    });
}

std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes) {
    std::vector<std::u16string> linhas;
    TSaidaEmLista lista(linhas);
    TSaidaDeComando saida(lista, [](std::string_view AParte) { return DeUtf8(AParte); });
    saida.Receber(ABytes);
    saida.FecharParte();
    return linhas;
}

}  // namespace OryUtils::Interno
