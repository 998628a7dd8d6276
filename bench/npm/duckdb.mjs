// DuckDB over a CSV of one column:
//   node duckdb.mjs FILE           reads it and counts the values
//   node duckdb.mjs FILE OUTPUT    copies it to a CSV with one more column, the length of each value
import { DuckDBInstance } from "@duckdb/node-api";

const [arquivo, saida] = process.argv.slice(2);
const conexao = await (await DuckDBInstance.create(":memory:")).connect();
if (saida) {
  await conexao.run(`COPY (SELECT *, length(cnpj) AS tamanho FROM read_csv('${arquivo}')) TO '${saida}' (HEADER)`);
} else {
  const resposta = await conexao.runAndReadAll(`SELECT count(cnpj) FROM read_csv('${arquivo}')`);
  console.log(String(resposta.getRows()[0][0]));
}
