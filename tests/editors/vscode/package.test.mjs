// What the extension tells VS Code of the language, and the package that is made of it.
import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {mkdtempSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import Module, {createRequire} from 'node:module';
import {tmpdir} from 'node:os';
import {dirname, join} from 'node:path';
import {after, test} from 'node:test';
import {fileURLToPath} from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const root = join(here, '../../..');
const extension = join(root, 'editors/vscode');
const require = createRequire(join(extension, 'package.json'));
const yauzl = require('yauzl');
const {vscode, seen} = createRequire(import.meta.url)('./stand_in.cjs');

const read = name => JSON.parse(readFileSync(join(extension, name), 'utf8'));
const manifest = read('package.json');
const language = read('language-configuration.json');
const snippets = read('snippets.json');

const work = mkdtempSync(join(tmpdir(), 'pozhil-package-'));
after(() => rmSync(work, {recursive: true, maxRetries: 20}));

/** The files in an archive, by name. */
function unpacked(archive) {
    return new Promise((resolve, reject) => {
        const files = new Map();
        yauzl.open(archive, {lazyEntries: true}, (failure, zip) => {
            if (failure) return reject(failure);
            zip.on('error', reject).on('end', () => resolve(files)).on('entry', entry => {
                zip.openReadStream(entry, async (unread, stream) => {
                    if (unread) return reject(unread);
                    const chunks = [];
                    for await (const chunk of stream) chunks.push(chunk);
                    files.set(entry.fileName, Buffer.concat(chunks));
                    zip.readEntry();
                });
            }).readEntry();
        });
    });
}

test('the package holds what it needs and no more, and starts', async () => {
    execFileSync(join(root, 'scripts/vscode.sh'), [work], {stdio: 'pipe'});
    const files = await unpacked(join(work, 'pozhil.vsix'));
    const ours = [...files.keys()].filter(name => name.startsWith('extension/')).sort();
    assert.deepEqual(ours.map(name => name.slice('extension/'.length)), [
        'README.md', 'extension.js', 'icon.png', 'language-configuration.json', 'package.json',
        'pozhil.tmLanguage.json', 'snippets.json']);
    assert.deepEqual(files.get('extension/pozhil.tmLanguage.json'),
        readFileSync(join(root, 'editors/textmate/pozhil.tmLanguage.json')));
    assert.equal(files.get('extension/icon.png').readUInt32BE(16), 128);
    const {contributes, main, icon} = manifest;
    for (const path of [main, icon, contributes.languages[0].configuration, contributes.grammars[0].path, contributes.snippets[0].path]) {
        assert.ok(files.has(`extension/${path.replace('./', '')}`), path);
    }

    const bundle = join(work, 'extension.js');
    writeFileSync(bundle, files.get('extension/extension.js'));
    const load = Module._load;
    Module._load = (name, ...rest) => name === 'vscode' ? vscode : load(name, ...rest);
    const {activate, deactivate} = createRequire(import.meta.url)(bundle);
    seen.settings = {'pozhil.companion.path': '/nowhere/pozhil-thunai'};
    await activate({subscriptions: []});
    await deactivate();
    Module._load = load;
    assert.match(seen.warnings[0], /^பொழில்-துணை கிடைக்கவில்லை/);
    assert.deepEqual([...seen.commands.keys()].sort(), contributes.commands.map(({command}) => command).sort());
});

test('each text that users see is Tamil', () => {
    const {commands, configuration} = manifest.contributes;
    const texts = [
        manifest.displayName, manifest.description, configuration.title, ...commands.map(({title}) => title),
        ...Object.values(configuration.properties).map(({description}) => description),
        ...Object.values(snippets).map(({description}) => description),
    ];
    assert.ok(texts.length > 15);
    for (const text of texts) assert.match(text ?? '', /[\u0B85-\u0BB9]/);
});

test('words are whole, with their signs', () => {
    const {pattern, flags} = language.wordPattern;
    const words = text => text.match(new RegExp(pattern, `${flags}g`));
    assert.deepEqual(words('செயல் கூட்டல்_2(அஃது, மெய்):'), ['செயல்', 'கூட்டல்_2', 'அஃது', 'மெய்']);
    assert.deepEqual(words('௧௨ 3.14 50%'), ['௧௨', '3.14', '50%']);
    assert.ok(!new RegExp(pattern, flags).test(''), 'an empty word would never end');
});

test('lines indent behind a colon, and what goes on with a block moves out', () => {
    const {increaseIndentPattern, decreaseIndentPattern} = language.indentationRules;
    const increases = line => new RegExp(increaseIndentPattern).test(line);
    for (const line of ['எனில் அ:', '    சுற்று மெய்:  ', 'எனில் அ: ஃ குறிப்பு', 'எனில் அ சமம் "ஃ":', 'எனில் அஃது:']) {
        assert.ok(increases(line), line);
    }
    for (const line of ['அ = 1', 'ஃ குறிப்பு:', 'அ() ஃ குறிப்பு:', 'அ = "ஆ:"', 'நிறம்: 1', 'அ = ":']) {
        assert.ok(!increases(line), line);
    }
    assert.ok(!increases(`${'ஆ'.repeat(5000)}ஃ`), 'and quickly');
    const decreases = line => new RegExp(decreaseIndentPattern).test(line);
    for (const line of ['    இல்லை:', 'இல்லைஎனில் அ:', 'பிடி (அ):', 'பிடி அ:', 'மற்றவை:']) assert.ok(decreases(line), line);
    for (const line of ['இல்லை', 'இல்லைஎனில்லா:', 'நிலை 1:', 'எனில் அ:']) assert.ok(!decreases(line), line);
    const ends = line => new RegExp(language.onEnterRules[0].beforeText).test(line);
    for (const line of ['    திரும்பு', '    திரும்பு அ கூட்டு 1', '    திரும்பு கூடு(1)', '    நிறுத்து', '    தொடர்']) {
        assert.ok(ends(line), line);
    }
    for (const line of ['    திரும்பு [', '    திரும்பு கூடு(', '    திரும்புமுனை = 1', 'தொடர்ச்சி()']) assert.ok(!ends(line), line);
});

test('each snippet is a program as it stands', () => {
    const names = new Set();
    const files = Object.entries(snippets).map(([name, {prefix, body}]) => {
        for (const start of prefix) assert.ok(!names.has(start) && names.add(start), `twice: ${start}`);
        const text = body.join('\n').replace(/\$\{\d+:((?:[^{}]|\\\})*)\}|\$\d+/g, (_, words) => words ?? '');
        assert.doesNotMatch(text, /\$/, name);
        const file = join(work, `${name}.பொழில்`);
        writeFileSync(file, `${text}\n`);
        return file;
    });
    assert.ok(files.length > 5);
    const told = JSON.parse(runCheck(files));
    assert.deepEqual(told.filter(({severity}) => severity === 'error'), []);
    for (const file of files) execFileSync(process.env.POZHIL_COMPANION, ['format', '--check', file], {stdio: 'pipe'});
});

function runCheck(files) {
    try {
        return execFileSync(process.env.POZHIL_COMPANION, ['check', '--json', ...files], {encoding: 'utf8'});
    } catch (failure) {
        if (failure.status !== 1) throw failure;
        return failure.stdout;
    }
}
