/* OryUtils for every language: the value operations of the library behind three C functions.
 *
 * A request and its answer are JSON in UTF-8, the same that `ory chamar --lote` reads and writes (docs/ory.md; `ory
 * operacoes` lists what can be called):
 *
 *   char *resposta = ory_chamar("{\"op\":\"ValidouCnpjCpf\",\"args\":[1,\"11222333000181\"]}");
 *   puts(resposta);                        {"resultado":true}
 *   ory_liberar(resposta);
 *
 * Threads: every function may be called from any thread, from several at the same time. A call runs on the caller's
 * thread until it is done; the library starts no threads. An answer belongs to the caller, who may free it on another
 * thread. Nothing has to be called first or last.
 *
 * No C++ exception ever leaves these functions, and no locale, signal or floating-point setting of the process is
 * changed. Messages that an operation would show in a dialog go to stderr.
 */
#ifndef ORYUTILS_C_ORYUTILS_H
#define ORYUTILS_C_ORYUTILS_H

#ifdef __cplusplus
extern "C" {
#endif

/* Answers one request.
 *
 * requisicao  a JSON object in UTF-8, ended by a zero byte: {"op": name, "args": [values]}
 * Result:     {"resultado": value}, or {"erro": "message", "classe": "class"} for whatever fails: the class of the
 *             operation's exception; "EProtocolo" for what is no request (broken JSON, a null pointer, a text above
 *             16 MB); "EOperacaoDesconhecida"; "EArgumento" for a wrong number or kind of arguments; "EOutOfMemory".
 *             UTF-8, one line, ended by a zero byte, never null. Give it to ory_liberar when done.
 */
char* ory_chamar(const char* requisicao);

/* Frees an answer of ory_chamar, once. Null is ignored. No other function frees it (free() does not). */
void ory_liberar(char* resposta);

/* The version of the library, "0.1.0". It lives as long as the library is loaded; do not free it. */
const char* ory_versao(void);

#ifdef __cplusplus
}
#endif

#endif
