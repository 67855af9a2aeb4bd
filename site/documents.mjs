// Which documents the site shows, in which order, and where each of them lands. What comes in is a folder
// in the shape of the checkout; a shelf whose documents aren't there is left out.
import {existsSync, readFileSync, readdirSync, statSync} from 'node:fs';
import {basename, dirname, join, posix} from 'node:path';

/** A shelf is a group of documents in the menu: a folder, a file, or the programs of two folders. */
const shelves = [
    {title: 'வழிகாட்டி', folder: 'docs/வழிகாட்டி', about: 'முதல் நிரலிலிருந்து முழுச் செயலி வரை, படிப்படியாக.'},
    {title: 'குறிப்பேடு', folder: 'docs/குறிப்பேடு', about: 'ஒவ்வொரு சொல்லும் என்ன செய்யும், எப்படி எழுதுவது.'},
    {title: 'எடுத்துக்காட்டுகள்', programs: ['examples/console', 'examples/web'], about: 'படித்துப் பார்க்கவும் இயக்கிப் பார்க்கவும் நிரல்கள்.'},
    {title: 'தொகுப்பு நூலகம்', file: 'தொகுப்புகள்/README.md', about: 'எண், உரை, பட்டியல்: இறக்கிப் பயன்படுத்த ஆயத்தமானவை.', plainFence: 'பொழில்'},
    {title: 'துணையின் விதிகள்', file: 'docs/துணை_விதிகள்.md', about: 'துணை கண்டுபிடிக்கும் தவறுகள், ஒவ்வொன்றும் சரியான வடிவத்தோடு.', plainFence: 'பொழில்'},
    {title: 'English guide', folder: 'docs/guide', about: 'The same chapters, shorter, in English.', language: 'en'},
];

const programFolders = [
    {folder: 'examples/console', title: 'முனையத்தில் இயங்குபவை'},
    {folder: 'examples/web', title: 'உலாவியில் இயங்குபவை'},
];

function filesBelow(root, folder, ending) {
    const files = [];
    for (const name of readdirSync(join(root, folder)).sort()) {
        const path = `${folder}/${name}`;
        if (statSync(join(root, path)).isDirectory()) files.push(...filesBelow(root, path, ending));
        else if (name.endsWith(ending)) files.push(path);
    }
    return files;
}

function linkedFiles(root, source) {
    const text = readFileSync(join(root, source), 'utf8');
    return [...text.matchAll(/\]\(<?([^)>#\s]+\.md)/g)]
        .map(([, target]) => posix.normalize(posix.join(dirname(source), decodeURI(target))));
}

const stemOf = source => source.replace(/\.md$/, '');

/** What belongs to `file`, in the order of its links: `பிழைகள்_200.md` and what `உறுப்புகள்/` holds. */
function itsOwn(root, files, file) {
    const own = files.filter(other => other !== file && stemOf(other).startsWith(stemOf(file)));
    return [...linkedFiles(root, file).filter(other => own.includes(other)), ...own];
}

/** The contents first. Behind them numbered chapters by their number, others as the contents name them. */
function inOrder(root, folder) {
    const files = filesBelow(root, folder, '.md');
    const contents = `${folder}/README.md`;
    if (!files.includes(contents)) return files;
    const others = files.filter(file => file !== contents);
    if (others.every(file => /^\d/.test(basename(file)))) return [contents, ...others];
    const named = linkedFiles(root, contents).filter(file => others.includes(file));
    return [...new Set([contents, ...named.flatMap(file => [file, ...itsOwn(root, others, file)]), ...others])];
}

/** `docs/வழிகாட்டி/README.md` is shown as `வழிகாட்டி/index.html`. */
function urlOf(source) {
    return source.replace(/^docs\//, '').replace(/(^|\/)README\.md$/, '$1index.html').replace(/\.(md|பொழில்)$/, '.html');
}

function withoutMarks(markdown) {
    return markdown.replace(/\[([^\]]*)\]\([^)]*\)/g, '$1').replace(/[`*]/g, '').trim();
}

function titleOf(text, source) {
    const heading = /^# +(.+)$/m.exec(text.replace(/^(```|~~~)[\s\S]*?^\1/gm, ''));
    return heading ? withoutMarks(heading[1]) : basename(source).replace(/\.[^.]*$/, '').replaceAll('_', ' ');
}

function documentOf(root, source) {
    const text = readFileSync(join(root, source), 'utf8');
    const number = /^(\d+)_/.exec(basename(source));
    return {source, text, url: urlOf(source), title: titleOf(text, source), number: number ? `${Number(number[1])}. ` : ''};
}

/** The lines of the comment with which a program opens, without the program's name. */
function openingComment(text, name) {
    const lines = [];
    for (const line of text.split('\n')) {
        const comment = /^ஃ(?!ஃ) ?(.*)$/.exec(line);
        if (!comment) break;
        lines.push(comment[1]);
    }
    return lines.map(line => line.replace(new RegExp(`^${name}: *`), ''));
}

/** A program as a document: its opening comment as prose, then all of it. */
function programDocument(root, source) {
    const program = readFileSync(join(root, source), 'utf8');
    const name = basename(source, '.பொழில்');
    const about = openingComment(program, name);
    const text = `# ${name}\n\n${about.join('  \n')}\n\n~~~~பொழில் ${name}\n${program.trimEnd()}\n~~~~\n`;
    return {source, text, url: urlOf(source), title: name, about: about[0] ?? ''};
}

function programDocuments(root, shelf) {
    const programs = shelf.programs.filter(folder => existsSync(join(root, folder)))
        .flatMap(folder => filesBelow(root, folder, '.பொழில்')).map(source => programDocument(root, source));
    if (programs.length === 0) return [];
    const parts = programFolders.map(({folder, title}) => {
        const rows = programs.filter(({source}) => source.startsWith(`${folder}/`))
            .map(({source, title: name, about}) => `- [${name}](${source.slice('examples/'.length)}) — ${about}`);
        return rows.length > 0 ? `## ${title}\n\n${rows.join('\n')}\n` : '';
    });
    const contents = `# ${shelf.title}\n\n${shelf.about}\n\n${parts.join('\n')}`;
    return [{source: 'examples/README.md', text: contents, url: 'examples/index.html', title: shelf.title, folders: shelf.programs}, ...programs];
}

function documentsOf(root, shelf) {
    if (shelf.programs) return programDocuments(root, shelf);
    if (!existsSync(join(root, shelf.folder ?? shelf.file))) return [];
    const sources = shelf.folder ? inOrder(root, shelf.folder) : [shelf.file];
    return sources.map(source => documentOf(root, source));
}

/** What the menu shows beside `document`: its shelf, without what belongs to other documents of it. */
function neighboursOf(document, documents) {
    const owns = owner => other => dirname(other.source) === stemOf(owner.source);
    const ownerOf = other => documents.find(owner => owns(owner)(other));
    const near = [document, ownerOf(document)];
    return documents.slice(1).filter(other => !ownerOf(other) || near.includes(ownerOf(other)))
        .map(({url, title, number, source}) => ({url, title: `${number ?? ''}${title}`, isDeep: ownerOf({source}) !== undefined}));
}

function shelve(shelf, documents) {
    return documents.map((document, at) => ({
        ...document, shelf, previous: documents[at - 1], next: documents[at + 1],
        neighbours: neighboursOf(document, documents),
        language: shelf.language ?? 'ta', plainFence: shelf.plainFence,
    }));
}

/** The start page: what the README says before its first part, and the first program. */
function startDocument(root) {
    const readme = join(root, 'README.md');
    const text = existsSync(readme) ? readFileSync(readme, 'utf8').split(/^## /m)[0].trim() : '# பொழில்';
    const first = join(root, 'examples/console/வணக்கம்.பொழில்');
    const program = existsSync(first) ? `\n\n\`\`\`பொழில் வணக்கம்\n${readFileSync(first, 'utf8').trimEnd()}\n\`\`\`\n` : '';
    return {source: 'README.md', text: text + program, url: 'index.html', title: 'பொழில்', isStart: true, language: 'ta'};
}

/** All documents below `root`, the start page first; and the shelves that aren't empty. */
export function readDocuments(root) {
    const filled = shelves.map(shelf => ({shelf, documents: shelve(shelf, documentsOf(root, shelf))}))
        .filter(({documents}) => documents.length > 0);
    return {
        documents: [startDocument(root), ...filled.flatMap(({documents}) => documents)],
        shelves: filled.map(({shelf, documents}) => ({...shelf, url: documents[0].url, documents})),
    };
}
