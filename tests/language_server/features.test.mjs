// Every feature through the protocol, by a client that isn't ours.
import assert from 'node:assert/strict';
import {mkdtempSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {after, before, test} from 'node:test';
import {Editor, edited, range, until, uriOf} from './support.mjs';

const folder = mkdtempSync(join(tmpdir(), 'pozhil-lsp-'));
const uri = uriOf(join(folder, 'நிரல்.பொழில்'));
const text = `ஃ இரண்டு எண்களைச் சேர்க்கும்
செயல் சேர்த்திடு(அ, ஆ):
    திரும்பு அ கூட்டு ஆ

முகம் = "😀"
கூட்டல் = சேர்த்திடு(1, 2)
அச்சிடு("😀😀", கூட்டல், முகம்)
`;
let editor;

before(async () => {
    editor = await Editor.start(folder);
    await editor.open(uri, text);
});
after(async () => {
    assert.deepEqual(await editor.stop(), {code: 0, signal: null});
    rmSync(folder, {recursive: true});
});

test('a right program has no findings', async () => {
    assert.deepEqual(await editor.diagnosticsOf(uri), []);
});

test('hover tells words and declared names', async () => {
    const keyword = await editor.ask('hover', uri, 2, 6);
    assert.match(keyword.contents.value, /திரும்பு/);
    assert.deepEqual(keyword.range, range(2, 4, 2, 12));
    const name = await editor.ask('hover', uri, 5, 12);
    assert.match(name.contents.value, /செயல் சேர்த்திடு\(அ, ஆ\)/);
    assert.match(name.contents.value, /இரண்டு எண்களைச் சேர்க்கும்/);
    assert.equal(await editor.ask('hover', uri, 3, 0), null);
});

test('names are found behind characters outside the basic plane', async () => {
    const places = await editor.ask('definition', uri, 6, 17);
    assert.deepEqual(places, [{uri, range: range(5, 0, 5, 7)}]);
    const uses = await editor.ask('references', uri, 6, 17, {context: {includeDeclaration: true}});
    assert.deepEqual(uses.map((use) => use.range), [range(5, 0, 5, 7), range(6, 16, 6, 23)]);
    const marked = await editor.ask('documentHighlight', uri, 6, 17);
    assert.deepEqual(marked.map((use) => use.kind), [3, 2]);
});

test('a rename changes each place', async () => {
    const ready = await editor.ask('prepareRename', uri, 6, 17);
    assert.equal(ready.placeholder, 'கூட்டல்');
    const edit = await editor.ask('rename', uri, 6, 17, {newName: 'விடைகள்'});
    assert.equal(edited(text, edit.changes[uri]), text.replaceAll('கூட்டல்', 'விடைகள்'));
    await assert.rejects(editor.ask('rename', uri, 6, 17, {newName: 'எனில்'}), /பொழிலின் சொல்|பெயராக/);
});

test('symbols, folds, tokens', async () => {
    const symbols = await editor.ask('documentSymbol', uri, 0, 0);
    assert.deepEqual(symbols.map((symbol) => symbol.name), ['சேர்த்திடு', 'முகம்', 'கூட்டல்']);
    const folds = await editor.ask('foldingRange', uri, 0, 0);
    assert.deepEqual(folds, [{startLine: 1, endLine: 2}]);
    const tokens = await editor.ask('semanticTokens/full', uri, 0, 0);
    assert.equal(tokens.data.length % 5, 0);
    const legend = editor.capabilities.semanticTokensProvider.legend.tokenTypes;
    assert.equal(legend[tokens.data[3]], 'comment');
});

test('a call that is being written shows its head', async () => {
    const half = uriOf(join(folder, 'பாதி.பொழில்'));
    await editor.open(half, text + 'அச்சிடு(சேர்த்திடு(1, ');
    const help = await editor.ask('signatureHelp', half, 7, 22);
    assert.equal(help.signatures[0].label, 'சேர்த்திடு(அ, ஆ)');
    assert.equal(help.activeParameter, 1);
});

test('formatting changes the layout alone', async () => {
    const wide = uriOf(join(folder, 'அகலம்.பொழில்'));
    const source = 'அ=1\nஅச்சிடு( அ,2 )\n';
    await editor.open(wide, source);
    const edits = await editor.ask('formatting', wide, 0, 0,
        {options: {tabSize: 4, insertSpaces: true}});
    assert.equal(edited(source, edits), 'அ = 1\nஅச்சிடு(அ, 2)\n');
});

test('a finding tells what to do, and can be put right by one press', async () => {
    const wrong = uriOf(join(folder, 'தவறு.பொழில்'));
    const source = '😀 = 1\nஅச்சிடு(“வணக்கம்”)\n';
    await editor.open(wrong, source);
    const found = await editor.diagnosticsOf(wrong);
    const quote = found.find((finding) => finding.code === 'துணை-112');
    assert.deepEqual(quote.range, range(1, 8, 1, 9));
    assert.equal(quote.severity, 1);
    const actions = await editor.ask('codeAction', wrong, 0, 0,
        {range: quote.range, context: {diagnostics: [quote]}});
    const fix = actions.find((action) => action.diagnostics[0].code === 'துணை-112');
    assert.equal(edited(source, fix.edit.changes[wrong]), '😀 = 1\nஅச்சிடு("வணக்கம்")\n');
});

test('an open block and half a word are served while they are written', async () => {
    const typed = uriOf(join(folder, 'எழுதும்.பொழில்'));
    await editor.open(typed, '');
    let at = 0;
    let line = 0;
    for (const letter of 'எனில் மெய்:\n    அச்சி') {
        await editor.change(typed, {range: range(line, at, line, at), text: letter});
        at = letter === '\n' ? 0 : at + letter.length;
        line += letter === '\n' ? 1 : 0;
        for (const method of ['hover', 'signatureHelp', 'documentSymbol', 'foldingRange']) {
            await editor.ask(method, typed, line, at);
        }
    }
    assert.ok((await editor.diagnosticsOf(typed)).length > 0);
});

test('imports: from the disk, from open documents, failing, of each other', async () => {
    const main = uriOf(join(folder, 'முதல்.பொழில்'));
    const module = uriOf(join(folder, 'நூல்.பொழில்'));
    await editor.open(main, 'நூஇறக்கி "நூல்"\nபாடு(1)\n');
    const missing = await editor.diagnosticsOf(main);
    assert.equal(missing[0].code, 'பொழில்-281');
    assert.equal(missing[0].range.start.line, 0);

    writeFileSync(join(folder, 'நூல்.பொழில்'), 'செயல் பாடு(அ):\n    அச்சிடு(அ)\n');
    await editor.connection.sendNotification('workspace/didChangeWatchedFiles',
        {changes: [{uri: module, type: 1}]});
    await editor.settled(main, (found) => found.length === 0);
    assert.deepEqual(await editor.ask('definition', main, 1, 1),
        [{uri: module, range: range(0, 6, 0, 10)}]);

    await editor.open(module, 'நூஇறக்கி "முதல்"\nசெயல் பாடு(அ, ஆ):\n    அச்சிடு(அ, ஆ)\n');
    await editor.settled(main, (found) => found.some((finding) => finding.code === 'பொழில்-331'));
    const rename = await editor.ask('rename', main, 1, 1, {newName: 'பாடல்'});
    assert.deepEqual(Object.keys(rename.changes).sort(), [main, module].sort());
});

test('a document of ten thousand lines', async () => {
    const long = uriOf(join(folder, 'நீளம்.பொழில்'));
    const lines = Array.from({length: 5000}, (_, i) => `எண்ணி${i} = ${i}\nஅச்சிடு(எண்ணி${i})\n`);
    await editor.open(long, lines.join(''));
    await editor.diagnosticsOf(long);
    await editor.change(long, {range: range(9999, 0, 9999, 0), text: 'அச்சிடு(\n'});
    const found = await editor.settled(long, (list) => list.length > 0);
    assert.ok(found.diagnostics.some((finding) => finding.range.start.line >= 9999));
    const places = await editor.ask('definition', long, 9997, 9);
    assert.equal(places[0].range.start.line, 9996);
});

test('a storm of changes is checked a few times only', async () => {
    const storm = uriOf(join(folder, 'புயல்.பொழில்'));
    await editor.open(storm, 'அச்சிடு(1)\n');
    await editor.diagnosticsOf(storm);
    const began = performance.now();
    const count = () => editor.published.filter((entry) => entry.uri === storm).length;
    const earlier = count();
    let version = 0;
    for (let i = 0; i < 200; i++) {
        version = await editor.change(storm, {text: `அச்சிடு(${i}\n`});
        await editor.connection.sendNotification('textDocument/didSave', {textDocument: {uri: storm}});
        await new Promise((resolve) => setTimeout(resolve, 4));
    }
    await until('the last version', () =>
        editor.published.some((entry) => entry.uri === storm && entry.version === version));
    const seconds = (performance.now() - began) / 1000;
    assert.ok(count() - earlier <= 3 + 8 * seconds, `${count() - earlier} in ${seconds} s`);
    const versions = editor.published.filter((entry) => entry.uri === storm)
        .map((entry) => entry.version);
    assert.deepEqual(versions, [...versions].sort((a, b) => a - b));
});
