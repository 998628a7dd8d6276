#include "oryutils/OryUtils.hpp"
#include "oryutils/c/OryCExport.hpp"
#include "oryutils/c/oryutils.h"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"

#include "operations/Operacoes.hpp"

#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <string_view>

namespace {

constexpr std::string_view CAusente = R"({"erro":"requisição ausente","classe":"EProtocolo"})";
constexpr std::string_view CLonga = R"({"erro":"requisição longa demais","classe":"EProtocolo"})";
// Where not even an answer can be had; never freed.
char GSemMemoria[] = R"({"erro":"memória insuficiente","classe":"EOutOfMemory"})";
char GInesperado[] = R"({"erro":"erro inesperado","classe":"Exception"})";

char* Copiar(std::string_view ATexto) noexcept {
    auto* copia = static_cast<char*>(std::malloc(ATexto.size() + 1));
    if (!copia) return GSemMemoria;
    std::memcpy(copia, ATexto.data(), ATexto.size());
    copia[ATexto.size()] = '\0';
    return copia;
}

}  // namespace

// The definitions say what is exported; the header for C knows no compiler's words for it.
ORY_C_API char* ory_chamar(const char* requisicao) {
    if (!OryUtils::TemPrecisaoPlena() || !OryUtils::TemDoublePadrao())
        return OryUtils::ComPrecisaoPlena([&] { return ory_chamar(requisicao); });
    if (!requisicao) return Copiar(CAusente);
    const auto* fim = static_cast<const char*>(std::memchr(requisicao, '\0', Ory::CMaiorRequisicao + 1));
    if (!fim) return Copiar(CLonga);
    try {
        static std::once_flag preparado;
        std::call_once(preparado, Ory::PrepararProcesso);
        return Copiar(Ory::Chamar({requisicao, static_cast<std::size_t>(fim - requisicao)}));
    } catch (const std::bad_alloc&) {
        return GSemMemoria;
    } catch (...) {
        return GInesperado;
    }
}

ORY_C_API void ory_liberar(char* resposta) {
    if (resposta != GSemMemoria && resposta != GInesperado) std::free(resposta);
}

ORY_C_API const char* ory_versao(void) { return OryUtils::BuscarVersaoOryUtils(); }
