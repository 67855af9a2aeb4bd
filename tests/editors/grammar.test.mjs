// The grammar, in both engines that editors and sites read it by: each word of the sources that others
// read gets the scope that the compiler's own tables give it.
import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {readFileSync, readdirSync} from 'node:fs';
import {createRequire} from 'node:module';
import {dirname, join} from 'node:path';
import {test} from 'node:test';
import {fileURLToPath, pathToFileURL} from 'node:url';

const root = join(dirname(fileURLToPath(import.meta.url)), '../..');
const require = createRequire(join(root, 'site/package.json'));
const load = name => import(pathToFileURL(require.resolve(name)));
const {createHighlighterCore} = await load('@shikijs/core');
const {createJavaScriptRegexEngine} = await load('@shikijs/engine-javascript');
const {createOnigurumaEngine} = await load('@shikijs/engine-oniguruma');

const grammar = {
    ...JSON.parse(readFileSync(join(root, 'editors/textmate/pozhil.tmLanguage.json'), 'utf8')),
    name: 'pozhil',
};

/** The scope that each kind of piece gets. */
const scopes = {
    keyword: 'keyword.control',
    operator: 'keyword.operator.word',
    truth: 'constant.language.boolean',
    'built-in': 'support.function.builtin',
    member: 'support.function.member',
    widget: 'support.class.widget',
    section: 'keyword.other.section',
    property: 'support.type.property-name',
    function: 'entity.name.function',
    structure: 'entity.name.type.structure',
    text: 'string.quoted.double',
    character: 'string.quoted.single',
    number: 'constant.numeric',
    comment: 'comment',
};

const folders = [
    'examples/console', 'examples/web', 'src/companion/descriptions/programs',
    'src/companion/descriptions/unprinted',
];
const files = folders.flatMap(folder =>
    readdirSync(join(root, folder)).filter(name => name.endsWith('.பொழில்')).map(name => join(root, folder, name)));

/** What the compiler tells of each file: [kind, first byte, byte behind the last]. */
function toldWords() {
    const lines = execFileSync(process.env.POZHIL_EDITOR_GRAMMAR, ['words', ...files], {encoding: 'utf8', maxBuffer: 64 << 20});
    const told = new Map();
    let pieces;
    for (const line of lines.split('\n')) {
        const [kind, begin, end] = line.split(' ');
        if (kind === 'file') told.set(line.slice(5), pieces = []);
        else if (kind) pieces.push({kind, begin: Number(begin), end: Number(end)});
    }
    return told;
}

/** The innermost scopes of a source, by the index of the letter. */
function scopesOf(highlighter, source) {
    const lines = highlighter.codeToTokensBase(source, {lang: 'pozhil', theme: 'plain', includeExplanation: 'scopeName'});
    const found = [];
    for (const token of lines.flat()) {
        let at = token.offset;
        for (const {content, scopes: names} of token.explanation) {
            for (const end = at + content.length; at < end; at++) found[at] = names.map(({scopeName}) => scopeName);
        }
    }
    return found;
}

async function highlighterWith(engine) {
    return createHighlighterCore({engine, langs: [grammar], themes: [{name: 'plain', settings: [], fg: '#000000', bg: '#ffffff'}]});
}

/** The index in the text at which each byte stands that begins a letter, and that behind the last. */
function indicesByByte(source) {
    const indices = new Map();
    let byte = 0;
    let index = 0;
    for (const letter of source) {
        indices.set(byte, index);
        byte += Buffer.byteLength(letter);
        index += letter.length;
    }
    return indices.set(byte, index);
}

/** Pieces of `source` whose first or last letter lacks the scope of their kind. */
function missed(found, source, pieces) {
    const bytes = Buffer.from(source);
    const indices = indicesByByte(source);
    const at = offset => indices.get(offset);
    return pieces.filter(({kind, begin, end}) =>
        [at(begin), at(end) - 1].some(index => !found[index]?.some(name => name.startsWith(scopes[kind]))))
        .map(({kind, begin, end}) => `${kind}: ${bytes.subarray(begin, end)}`);
}

const engines = {
    'the engine of JavaScript': async () => createJavaScriptRegexEngine(),
    Oniguruma: () => createOnigurumaEngine(load('@shikijs/engine-oniguruma/wasm-inlined')),
};

for (const [name, engine] of Object.entries(engines)) {
    test(`${name} gives each piece of the examples its scope`, async () => {
        const highlighter = await highlighterWith(await engine());
        const kinds = new Set();
        for (const [file, pieces] of toldWords()) {
            const source = readFileSync(file, 'utf8');
            assert.deepEqual(missed(scopesOf(highlighter, source), source, pieces), [], file);
            for (const {kind} of pieces) kinds.add(kind);
        }
        assert.deepEqual([...kinds].sort(), Object.keys(scopes).sort(), 'every kind stands in an example');
    });

    test(`${name} passes over what only looks like a word of the language`, async () => {
        const highlighter = await highlighterWith(await engine());
        const scopeOf = (source, word) => {
            const at = source.lastIndexOf(word);
            return scopesOf(highlighter, source)[at].at(-1);
        };
        const rows = [
            ['சமமா = 1', 'சமமா', 'variable.other.pozhil'],            // a word goes on behind its vowel sign
            ['மெய்யா = 1', 'மெய்', 'variable.other.pozhil'],
            ['அஃது = 1', 'ஃது', 'variable.other.pozhil'],             // the mark inside a word opens no comment
            ['எண் = 1', 'எண்', 'variable.other.pozhil'],              // a built-in's name that isn't called
            ['x.நீக்கு(1)', 'நீக்கு', 'variable.other.pozhil'],
            ['x = "ஃ இல்லை"', 'இல்லை', 'string.quoted.double.pozhil'],
            ['ஃஃ எனில்\nசுற்று ஃஃ சுற்று', 'சுற்று', 'keyword.control.pozhil'],
            ['ஃஃ எனில்\nசுற்று ஃஃ', 'சுற்று', 'comment.block.pozhil'],
            ['"அ\\nஆ"', 'n', 'constant.character.escape.pozhil'],
            ['"அ\\" எனில்', 'எனில்', 'keyword.control.pozhil'],       // a backslash doesn't keep a text open
            ['மாறிலி_பை = 3.14', 'மாறிலி_பை', 'variable.other.constant.pozhil'],
            ['கட்டமைப்பு பூனை(விலங்கு):', 'விலங்கு', 'entity.other.inherited-class.pozhil'],
            ['தான்.x = 50%', '50%', 'constant.numeric.pozhil'],
            ['x = ௧௨', '௧௨', 'constant.numeric.pozhil'],
            ['x1 = 2', '1', 'variable.other.pozhil'],
        ];
        for (const [source, word, scope] of rows) assert.equal(scopeOf(source, word), scope, source);
    });
}
