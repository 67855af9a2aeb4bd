// The made pages as files: links, names, captions, order, and what the search goes by.
import assert from 'node:assert/strict';
import {cpSync, mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {after, before, test} from 'node:test';
import '../../site/assets/words.js';
import {attributes, filesOf, lostAddresses, makeSite, pageText, root, samples} from './support/made.mjs';

let whole;
let sample;
let work;
before(() => {
    whole = makeSite('whole');
    sample = makeSite('sample', samples);
    work = mkdtempSync(join(tmpdir(), 'pozhil-site-'));
});
after(() => rmSync(work, {recursive: true, force: true}));

const chapter = 'வழிகாட்டி/01_முதல்_நிரல்.html';

test('each address of the checkout\'s site leads to a page and a place of it', () => {
    assert.ok(filesOf(whole, '.html').length > 30);
    assert.deepEqual(lostAddresses(whole), []);
});

test('each address of the samples\' site leads to a page and a place of it', () => {
    assert.deepEqual(lostAddresses(sample), []);
});

test('a link into nothing is found, and doesn\'t keep the site from being made', () => {
    const documents = join(work, 'lost');
    cpSync(samples, documents, {recursive: true});
    writeFileSync(join(documents, 'docs/வழிகாட்டி/03_இல்லை.md'),
        '# இல்லை\n\n[பக்கம்](99_எங்கே.md) [இடம்](01_முதல்_நிரல்.md#எங்கே) [இங்கே](#எங்கே) ![படம்](எங்கே.png) [வெளியே](https://localhost/)\n');
    const lost = lostAddresses(makeSite('lost', documents)).filter(([page]) => page.endsWith('03_இல்லை.html'));
    assert.deepEqual(lost.map(([, address]) => decodeURIComponent(address)),
        ['99_எங்கே.md', '01_முதல்_நிரல்.html#எங்கே', '#எங்கே', 'https://localhost/', 'எங்கே.png']);
});

test('no two places of a page have one name', () => {
    for (const site of [whole, sample]) {
        for (const page of filesOf(site, '.html')) {
            const ids = attributes(pageText(site, page), 'id');
            assert.deepEqual(ids.filter((id, at) => ids.indexOf(id) !== at), [], page);
        }
    }
});

test('a place that a document names before a heading is the heading\'s', () => {
    const ids = [...pageText(sample, 'குறிப்பேடு/சொற்கள்.html').matchAll(/<h\d id="([^"]*)"/g)].map(([, id]) => id);
    assert.deepEqual(ids, ['சொற்கள்', 'அச்சிடு-பற்றி-ஒரு-சொல்', 'அச்சிடு', 'அச்சிடு-1', 'எனில்', 'உள்ளீடு', 'ஒவ்வொன்றாக']);
});

test('each kind of fence has its caption, and programs can be copied', () => {
    const captions = [...pageText(sample, chapter).matchAll(/<figcaption><span>([^<]*)<\/span>(<button)?/g)]
        .map(([, caption, button]) => button ? `${caption} +` : caption);
    assert.deepEqual(captions, ['நிரல் +', 'வெளியீடு', 'பிழை அறிக்கை', 'துணையின் சரிபார்ப்பு', 'C++ தொகுப்பி சொல்வது',
        'நிரல் முறிந்தபோது', 'கோப்பு: பெயர்கள்.txt +', 'பைத்தான் +', 'முனையம் +', 'நிரல் +']);
});

test('what was typed is shown as typed, and nothing of a program becomes a tag', () => {
    const html = pageText(sample, chapter);
    assert.match(html, /உன் பெயர்\? <kbd>கமலா<\/kbd>\nவாழ்க &lt;கமலா&gt;/);
    assert.match(html, /<span class="text">&quot;வாழ்க &lt;&quot;<\/span>/);
});

test('programs are coloured by the word tables, with a fence\'s word or without', () => {
    assert.match(pageText(sample, chapter), /<span class="comment">ஃ கேட்டு வாழ்த்தும்<\/span>/);
    assert.match(pageText(sample, chapter), /<span class="call">print<\/span>/);
    assert.match(pageText(sample, 'துணை_விதிகள்.html'), /<span class="keyword">அச்சிடு<\/span>/);
    const button = pageText(sample, 'குறிப்பேடு/உறுப்புகள்/பொத்தான்.html');
    for (const piece of ['<span class="section">வலைதளம்</span>', '<span class="widget">பொத்தான்</span>',
        '<span class="property">அகலம்</span>', '<span class="number">50%</span>', '<span class="call">செல்க</span>']) {
        assert.ok(button.includes(piece), piece);
    }
});

test('links to sources are shown as their words, programs and pictures come along', () => {
    const html = pageText(sample, chapter);
    assert.match(html, /<span>சோதிக்கும் கோப்பு<\/span>/);
    assert.ok(attributes(html, 'href').map(decodeURIComponent).includes('../examples/console/வணக்கம்.html'));
    assert.ok(attributes(html, 'src').map(decodeURIComponent).includes('../நிரல்கள்/01/படம்.png'));
    assert.match(pageText(sample, 'வழிகாட்டி/index.html'), /<span><code>docs\/நிரல்கள்<\/code><\/span>[^]*<a href="\.\.\/examples\/index\.html">எடுத்துக்காட்டுகளும்<\/a>/);
    assert.match(pageText(sample, 'examples/index.html'), /வணக்கம்<\/a> — உலகை வாழ்த்தும் நிரல்\./);
});

/** From one page to the next, by the links at the foot. */
function pagesInARow(first) {
    const row = [];
    for (let page = first; page; ) {
        row.push(page);
        const next = /rel="next" href="([^"]*)"/.exec(pageText(sample, page));
        page = next && join(page, '..', decodeURIComponent(next[1]));
    }
    return row;
}

test('chapters follow by number, the reference as its contents and pages name it', () => {
    assert.deepEqual(pagesInARow('வழிகாட்டி/index.html'),
        ['வழிகாட்டி/index.html', chapter, 'வழிகாட்டி/02_சுற்றுகள்.html']);
    assert.deepEqual(pagesInARow('குறிப்பேடு/index.html').map(page => page.slice('குறிப்பேடு/'.length)),
        ['index.html', 'சொற்கள்.html', 'உறுப்புகள்.html', 'உறுப்புகள்/பொத்தான்.html', 'உறுப்புகள்/உரைபெட்டி.html', 'எல்லைகள்.html']);
    assert.match(pageText(sample, chapter), /rel="prev" href="index\.html"/);
});

test('the start page is the README\'s first part', () => {
    const html = pageText(sample, 'index.html');
    assert.match(html, /For the tests of the site\./);
    assert.doesNotMatch(html, /Two commands/);
    assert.match(html, /<span class="text">&quot;வணக்கம்&quot;<\/span>/);
    assert.equal(html.match(/<ul class="shelves">[\s\S]*?<\/ul>/)[0].match(/<li>/g).length, 5);
});

test('a site is made of whatever documents are there', () => {
    const documents = join(work, 'few');
    mkdirSync(join(documents, 'docs/guide'), {recursive: true});
    writeFileSync(join(documents, 'docs/guide/01_alone.md'), '# Alone\n');
    const few = makeSite('few', documents);
    assert.deepEqual(filesOf(few, '.html'), ['guide/01_alone.html', 'index.html']);
    assert.deepEqual(lostAddresses(few), []);
});

test('a folder with somebody\'s own files is left alone', () => {
    const folder = join(work, 'own');
    mkdirSync(folder);
    writeFileSync(join(folder, 'letter.txt'), 'dear');
    assert.throws(() => makeSite(folder, samples), /வேறு கோப்புகள்/);
    assert.equal(readFileSync(join(folder, 'letter.txt'), 'utf8'), 'dear');
});

test('what isn\'t a document any more leaves the site', () => {
    const documents = join(work, 'shrinking');
    cpSync(samples, documents, {recursive: true});
    assert.ok(filesOf(makeSite('shrinking', documents), '.html').includes(chapter));
    rmSync(join(documents, 'docs/வழிகாட்டி'), {recursive: true});
    assert.ok(!filesOf(makeSite('shrinking', documents), '.html').includes(chapter));
});

test('words sound to the search as they sound to the companion', () => {
    const {examples, ...rows} = JSON.parse(readFileSync(join(root, 'site/sounds.json'), 'utf8'));
    const {soundOf} = globalThis.pozhilWords(rows);
    assert.ok(examples.length > 300);
    for (const [word, sound] of examples) assert.equal(soundOf(word), sound, word);
});
