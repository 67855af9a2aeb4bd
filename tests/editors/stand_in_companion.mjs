#!/usr/bin/env node
// In the companion's place.
//   lsp              a language server that finds one problem in each document and notes in the file
//                    $POZHIL_NOTES what it was told; `exit` in a document's text ends it
//   check --json F   the same two problems for any file
//   format -         tabs become blanks; a source that holds `பிழை` is refused
import {appendFileSync, readFileSync} from 'node:fs';

const note = (...words) => appendFileSync(process.env.POZHIL_NOTES, `${JSON.stringify(words)}\n`);

function send(message) {
    const body = Buffer.from(JSON.stringify({jsonrpc: '2.0', ...message}));
    process.stdout.write(`Content-Length: ${body.length}\r\n\r\n`);
    process.stdout.write(body);
}

const answers = {
    initialize: () => ({capabilities: {textDocumentSync: 1, hoverProvider: true}, serverInfo: {name: 'stand-in'}}),
    'textDocument/hover': () => ({contents: 'விளக்கம்'}),
    shutdown: () => null,
};

function take({id, method, params}) {
    if (method === 'initialize') note('initialize', params.initializationOptions);
    if (method === 'textDocument/didOpen') {
        const {uri, text} = params.textDocument;
        note('opened', decodeURIComponent(uri));
        if (text.includes('exit')) process.exit(3);
        const range = {start: {line: 0, character: 0}, end: {line: 0, character: 1}};
        send({method: 'textDocument/publishDiagnostics', params: {uri, diagnostics: [{range, message: 'பிழை'}]}});
    }
    if (method === 'exit') process.exit(0);
    if (id !== undefined && method) send({id, result: answers[method]?.() ?? null});
}

const [command, ...rest] = process.argv.slice(2);
if (command === 'check') {
    const problem = (line, column, severity, message) => JSON.stringify(
        {file: rest.at(-1), line, column, endLine: line, endColumn: column + 1, severity, code: 'துணை-112', message})
        .replace(/("[^"]*"):/g, '$1: ').replace(/,"/g, ', "');
    process.stdout.write(`[\n  ${problem(2, 9, 'error', 'இரு பக்கமும் " இடு.')},\n` +
        `  ${problem(3, 1, 'warning', 'பெயர்: \\')}\n]\n`);
    process.exit(1);
}
if (command === 'format') {
    const text = readFileSync(0, 'utf8');
    if (text.includes('பிழை')) {
        process.stderr.write("'-' என்ற நிரலில் பிழை உள்ளது\n");
        process.exit(1);
    }
    process.stdout.write(text.replaceAll('\t', '    '));
    process.exit(0);
}

note('started', command, ...rest);
let bytes = Buffer.alloc(0);
process.stdin.on('data', chunk => {
    bytes = Buffer.concat([bytes, chunk]);
    for (;;) {
        const end = bytes.indexOf('\r\n\r\n');
        if (end < 0) return;
        const length = Number(/Content-Length: (\d+)/i.exec(bytes.subarray(0, end))[1]);
        if (bytes.length < end + 4 + length) return;
        const body = bytes.subarray(end + 4, end + 4 + length);
        bytes = bytes.subarray(end + 4 + length);
        take(JSON.parse(body));
    }
});
process.stdin.on('end', () => process.exit(0));
