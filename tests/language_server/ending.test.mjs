// However an editor goes, the server goes too; and whatever it is sent, it stays.
import assert from 'node:assert/strict';
import {spawn} from 'node:child_process';
import {test} from 'node:test';
import {setTimeout as sleep} from 'node:timers/promises';
import {Editor} from './support.mjs';

const uri = 'untitled:long';
const long = 'அச்சிடு(1)\n'.repeat(30000);

function start() {
    const server = spawn(process.env.POZHIL_LANGUAGE_SERVER, ['lsp'], {stdio: 'pipe'});
    const ended = new Promise((resolve) => server.on('exit', (code, signal) =>
        resolve({code, signal, time: performance.now()})));
    server.stdin.on('error', () => {});
    let output = '';
    server.stdout.on('data', (bytes) => (output += bytes));
    return {server, ended, output: () => output};
}

const framed = (body) => `Content-Length: ${Buffer.byteLength(body)}\r\n\r\n${body}`;
const message = (method, params, id) => framed(JSON.stringify({jsonrpc: '2.0', id, method, params}));
const initialize = message('initialize', {capabilities: {}}, 1);
const openLong = message('textDocument/didOpen',
    {textDocument: {uri, languageId: 'pozhil', version: 1, text: long}});

/// A second is promised; a busy machine may take a few.
async function endsSoon(ended, since) {
    const end = await ended;
    assert.ok(end.time - since < 5000, `${end.time - since} ms`);
    return end;
}

test('a closed input ends it at once, with work or without', async () => {
    for (const sent of ['', initialize, initialize + openLong, 'Content-Length: 100\r\n\r\n{']) {
        const {server, ended} = start();
        server.stdin.end(sent);
        const {code} = await endsSoon(ended, performance.now());
        assert.equal(code, 1);
    }
});

test('a closed input ends it in the midst of a long check', async () => {
    const {server, ended} = start();
    server.stdin.write(initialize + openLong);
    await sleep(100);
    const since = performance.now();
    server.stdin.end();
    await endsSoon(ended, since);
});

test('nobody who reads ends it', async () => {
    const {server, ended} = start();
    server.stdout.destroy();
    server.stdin.write(initialize);
    await endsSoon(ended, performance.now());
    server.stdin.end();
});

test('it may be killed in the midst of a request', async () => {
    const {server, ended} = start();
    server.stdin.write(initialize + openLong +
        message('textDocument/hover', {textDocument: {uri}, position: {line: 5, character: 1}}, 2));
    server.kill('SIGTERM');
    assert.equal((await ended).signal, 'SIGTERM');
});

test('shutdown in the midst of work is answered, and exit ends it well', async () => {
    const {server, ended, output} = start();
    server.stdin.write(initialize + openLong + message('shutdown', null, 2) + message('exit'));
    assert.equal((await ended).code, 0);
    assert.match(output(), /"id":2/);
});

test('exit without shutdown tells that something was wrong', async () => {
    const {server, ended} = start();
    server.stdin.write(initialize + message('exit'));
    assert.equal((await ended).code, 1);
});

test('a wrong option is refused in words', async () => {
    const server = spawn(process.env.POZHIL_LANGUAGE_SERVER, ['lsp', '--port=5'], {stdio: 'pipe'});
    let complaint = '';
    server.stderr.on('data', (bytes) => (complaint += bytes));
    const code = await new Promise((resolve) => server.on('close', resolve));
    assert.equal(code, 2);
    assert.match(complaint, /விருப்பம் இல்லை/);
});

test('no document ends it', async () => {
    const editor = await Editor.start();
    const sources = {
        deep: '('.repeat(100000),
        blocks: Array.from({length: 3000}, (_, i) => ' '.repeat(i) + 'எனில் மெய்:\n').join(''),
        line: 'அச்சிடு(' + '1 கூட்டு '.repeat(50000) + '1)\n',
        signs: '+ '.repeat(50000),
        quotes: '"'.repeat(50001),
        zeros: '\0'.repeat(1000) + 'அச்சிடு(1)',
        halves: 'அச்சிடு("\ud83d")\n\udc00 = 1\n',
        marks: '\u200b\u202e\ufeff'.repeat(1000),
        names: Array.from({length: 20000}, (_, i) => `பெயர்${i}`).join(' '),
    };
    for (const [name, text] of Object.entries(sources)) {
        const document = `untitled:${name}`;
        await editor.open(document, text);
        for (const method of ['hover', 'definition', 'references', 'documentHighlight',
            'documentSymbol', 'foldingRange', 'semanticTokens/full', 'signatureHelp',
            'formatting', 'prepareRename']) {
            await editor.ask(method, document, 0, 5, {context: {includeDeclaration: true}})
                .catch((refusal) => assert.equal(refusal.code, -32803, `${name}: ${method}`));
        }
        await editor.diagnosticsOf(document);
    }
    assert.equal((await editor.stop()).code, 0);
});
