/* The interface as a C program sees it, good and bad requests alike. */
#include "oryutils/c/oryutils.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int falhas = 0;

static void conferir(const char* porque, const char* requisicao, const char* esperado) {
    char* resposta = ory_chamar(requisicao);
    if (!resposta || strcmp(resposta, esperado) != 0) {
        printf("FAILED: %s\n  got      %s\n  expected %s\n", porque, resposta ? resposta : "(null)", esperado);
        ++falhas;
    }
    ory_liberar(resposta);
}

static void conferir_inicio(const char* porque, const char* requisicao, const char* inicio) {
    char* resposta = ory_chamar(requisicao);
    if (!resposta || strncmp(resposta, inicio, strlen(inicio)) != 0) {
        printf("FAILED: %s\n  got      %.200s\n  expected %s...\n", porque, resposta ? resposta : "(null)", inicio);
        ++falhas;
    }
    ory_liberar(resposta);
}

/* A request of that many bytes: the text of a long argument between the two parts. */
static char* compor(const char* antes, char recheio, const char* depois, size_t tamanho) {
    const size_t a = strlen(antes), d = strlen(depois);
    char* texto = malloc(tamanho + 1);
    if (!texto) exit(2);
    memcpy(texto, antes, a);
    memset(texto + a, recheio, tamanho - a - d);
    memcpy(texto + tamanho - d, depois, d + 1);
    return texto;
}

/* As the threads of Windows start (53 bits), and as programs that want to be stopped by a NaN set them. */
static void conferir_em_outra_aritmetica(void) {
    const unsigned short controles[] = {0x027F, 0x0372}, usual = 0x037F;
    const unsigned doubles[] = {0x1F80, 0x1D00}, usual_double = 0x1F80;
    for (int i = 0; i < 2; ++i) {
        __asm__ volatile("fldcw %0\n\tldmxcsr %1" : : "m"(controles[i]), "m"(doubles[i]) : "memory");
        conferir("18 digits", "{\"op\":\"Arredondar\",\"args\":[\"9007199254740.995\"]}",
                 "{\"resultado\":\"9007199254741\"}");
        conferir("the half of a cent", "{\"op\":\"BuscarValorPorExtenso\",\"args\":[\"1.005\"]}",
                 "{\"resultado\":\"UM REAL E UM CENTAVO\"}");
        conferir("a power", "{\"op\":\"CalcularFormula\",\"args\":[\"EXP(1,0000000001;10)\",{},0,2]}",
                 "{\"resultado\":\"1.000000001\"}");
        __asm__ volatile("fnclex\n\tfldcw %0\n\tldmxcsr %1" : : "m"(usual), "m"(usual_double) : "memory");
    }
}

int main(void) {
    const size_t maior = (size_t)16 << 20;
    char* longa;

    conferir("a verdict", "{\"op\":\"ValidouCnpjCpf\",\"args\":[1,\"11222333000181\"]}", "{\"resultado\":true}");
    conferir("accents; Brazilian formats whatever the machine's",
             "{\"op\":\"BuscarDataPorExtenso\",\"args\":[\"2026-03-03\"]}",
             "{\"resultado\":\"Terça, 03 de Marco de 2026\"}");
    conferir_em_outra_aritmetica();
    conferir("no request", NULL, "{\"erro\":\"requisição ausente\",\"classe\":\"EProtocolo\"}");
    conferir("an empty one", "", "{\"erro\":\"JSON inválido no byte 1\",\"classe\":\"EProtocolo\"}");
    conferir("another kind of JSON", "[1]",
             "{\"erro\":\"a requisição não é um objeto JSON\",\"classe\":\"EProtocolo\"}");
    conferir_inicio("broken UTF-8", "{\"op\":\"\xC3\x28\"}", "{\"erro\":");
    conferir_inicio("a lone surrogate", "{\"op\":\"\\ud800\"}", "{\"erro\":");
    conferir_inicio("a zero in the text", "{\"op\":\"ExtrairSomenteNumeros\",\"args\":[\"1\\u00002\"]}",
                    "{\"resultado\":\"12\"}");
    conferir("an unknown operation", "{\"op\":\"Nada\"}",
             "{\"erro\":\"operação desconhecida: Nada\",\"classe\":\"EOperacaoDesconhecida\"}");
    conferir_inicio("an exception of the library", "{\"op\":\"CalcularFormula\",\"args\":[\"1+\",[],[]]}",
                    "{\"erro\":\"");
    conferir_inicio("too few arguments", "{\"op\":\"ValidouCnpjCpf\"}", "{\"erro\":\"esperava 2 argumentos, veio 0");

    longa = compor("{\"op\":\"ExtrairSomenteNumeros\",\"args\":[\"", 'x', "7\"]}", maior);
    conferir("the longest request", longa, "{\"resultado\":\"7\"}");
    free(longa);
    longa = compor("{\"op\":\"ExtrairSomenteNumeros\",\"args\":[\"", 'x', "7\"]}", maior + 1);
    conferir("longer than the longest", longa, "{\"erro\":\"requisição longa demais\",\"classe\":\"EProtocolo\"}");
    free(longa);
    longa = compor("{\"op\":", '[', "", 200000);
    conferir_inicio("as deep as it is long", longa, "{\"erro\":\"JSON inválido");
    free(longa);
    longa = compor("", ' ', "", 4 * maior);
    conferir("nothing but blanks", longa, "{\"erro\":\"requisição longa demais\",\"classe\":\"EProtocolo\"}");
    free(longa);

    ory_liberar(NULL);
    if (strcmp(ory_versao(), ORY_VERSAO_ESPERADA) != 0) {
        printf("FAILED: version %s\n", ory_versao());
        ++falhas;
    }
    puts(falhas ? "failed" : "ok");
    return falhas != 0;
}
