// Asks the terminal program for examples of every topic with their LaTeX, and renders each formula.
import katex from "katex";
import { execFileSync } from "node:child_process";

const [terminal, examples] = process.argv.slice(2);
const ask = (args, input = "") => execFileSync(terminal, args, { input, maxBuffer: 1 << 30 }).toString();

const requests = [];
for (const { name } of JSON.parse(ask(["topics", "--json"])))
    for (const complex of [false, true])
        for (let seed = 0; seed < Number(examples); ++seed)
            requests.push(JSON.stringify({ op: "example", topic: name, complex, seed, forms: ["latex"] }));

const formulas = new Set();
for (const line of ask(["batch"], requests.join("\n") + "\n").trim().split("\n")) {
    for (const step of JSON.parse(line).steps) {
        formulas.add(step.forms.latex);
        for (const [, formula] of (step.noteForms?.latex ?? "").matchAll(/\\\((.*?)\\\)/g)) formulas.add(formula);
    }
}

let refused = 0;
for (const formula of formulas) {
    try {
        katex.renderToString(formula, { strict: "error", throwOnError: true, output: "mathml" });
    } catch (trouble) {
        console.log(`${formula}: ${trouble.message}`);
        ++refused;
    }
}
console.log(`${formulas.size} formulas, ${refused} refused`);
process.exit(refused > 0 || formulas.size < 1000 ? 1 : 0);
