// Markdown to HTML: headings with names, fences with captions, tables in boxes of their own, and links that
// lead to the pages of the site.
import {existsSync} from 'node:fs';
import {basename, dirname, join, posix} from 'node:path';
import MarkdownIt from 'markdown-it';
import {escaped, highlighted} from './highlight.mjs';

/** What stands over a fence, by the first word of its info. */
const fences = {
    பொழில்: {caption: 'நிரல்', hasCopy: true},
    வெளியீடு: {caption: 'வெளியீடு', shown: asTyped},
    அறிக்கை: {caption: 'பிழை அறிக்கை'},
    சரிபார்ப்பு: {caption: 'துணையின் சரிபார்ப்பு'},
    தொகுப்பி: {caption: 'C++ தொகுப்பி சொல்வது'},
    கோப்பு: {caption: 'கோப்பு', hasName: true, hasCopy: true},
    முறிவு: {caption: 'நிரல் முறிந்தபோது'},
    python: {caption: 'பைத்தான்', hasCopy: true},
    sh: {caption: 'முனையம்', hasCopy: true},
};
const plainFence = {caption: ''};

/** What was typed stands behind its sign to the line's end. */
function asTyped(text) {
    return escaped(text).replace(/⌨ (.*)$/gm, '<kbd>$1</kbd>');
}

/** The name of a heading as links to it have it. */
export function slugOf(heading) {
    return heading.trim().toLowerCase().replace(/[^\p{L}\p{M}\p{N}_ -]/gu, '').replaceAll(' ', '-');
}

/** The program's name without its folder, its lines and its ending. */
function shownName(name) {
    return basename(name ?? '').replace(/:[0-9-]+$/, '');
}

function fenceHtml({content, info}, plain) {
    const [word = '', name] = info.trim().split(/\s+/);
    const language = word || plain || '';
    const kind = fences[language] ?? plainFence;
    const text = content.replace(/\n$/, '');
    const code = kind.shown ? kind.shown(text) : highlighted(text, language);
    const title = kind.hasName && name ? `${kind.caption}: ${shownName(name)}` : kind.caption;
    const copy = kind.hasCopy ? '<button type="button" class="copy" hidden>நகலெடு</button>' : '';
    const caption = title || copy ? `<figcaption><span>${escaped(title)}</span>${copy}</figcaption>` : '';
    return `<figure class="code" data-kind="${escaped(language)}">${caption}<pre tabindex="0"><code>${code}\n</code></pre></figure>\n`;
}

const namedPlace = /^<a id="([^"]+)"><\/a>$/;

/** A place that the document names itself, right before a heading, is the heading's name. */
function takeNamedPlaces(tokens) {
    for (let at = tokens.length - 4; at >= 0; at--) {
        const place = namedPlace.exec(tokens[at + 1].content);
        if (!place || tokens[at].type !== 'paragraph_open' || tokens[at + 3].type !== 'heading_open') continue;
        tokens[at + 3].attrSet('id', place[1]);
        tokens.splice(at, 3);
    }
}

/** The words of a line, without its marks. */
export function wordsOf({children}) {
    return (children ?? []).map(({type, content}) => {
        if (type === 'softbreak' || type === 'hardbreak') return ' ';
        return type === 'text' || type === 'code_inline' ? content : '';
    }).join('');
}

/** Each heading has a name of its own: the one that the document gives it, else its words. */
function nameHeadings({tokens}) {
    takeNamedPlaces(tokens);
    const isHeading = ({type}) => type === 'heading_open';
    const taken = new Set(tokens.filter(isHeading).map(token => token.attrGet('id')));
    tokens.forEach((token, at) => {
        if (!isHeading(token) || token.attrGet('id')) return;
        const slug = slugOf(wordsOf(tokens[at + 1]));
        let name = slug;
        for (let number = 1; taken.has(name); number++) name = `${slug}-${number}`;
        taken.add(name);
        token.attrSet('id', name);
    });
}

/** Each table in a box that scrolls by itself. */
function boxTables(md) {
    md.renderer.rules.table_open = () => '<div class="table" tabindex="0"><table>\n';
    md.renderer.rules.table_close = () => '</table></div>\n';
}

const isElsewhere = href => /^[a-z][a-z0-9+.-]*:/i.test(href);

/** A path of the checkout as seen from the page `url`. */
export function relativeUrl(url, target) {
    return encodeURI(posix.relative(dirname(url), target) || basename(target)).replaceAll('#', '%23').replaceAll('?', '%3F');
}

/**
 * Where links lead. Documents of the site become pages, pictures are noted in `pictures` and come along;
 * of what else the checkout holds only the words are shown. What isn't there at all stays a link, so that it
 * is found.
 */
class Links {
    constructor(root, documents) {
        this.root = root;
        this.pages = new Map(documents.flatMap(({source, url, folders = []}) => [source, ...folders].map(path => [path, url])));
        this.pictures = new Set();
    }

    /** The new address, or nothing for a link that is shown as its words. */
    address(href, document) {
        if (isElsewhere(href) || href.startsWith('#')) return href;
        const [path, place] = decodeURI(href).split('#');
        const target = posix.normalize(posix.join(dirname(document.source), path)).replace(/\/$/, '');
        const url = this.pages.get(target) ?? this.pages.get(`${target}/README.md`);
        const hash = place ? `#${encodeURIComponent(place)}` : '';
        if (url) return relativeUrl(document.url, url) + hash;
        return existsSync(join(this.root, target)) ? undefined : href;
    }

    picture(src, document) {
        if (isElsewhere(src)) return src;
        const target = posix.normalize(posix.join(dirname(document.source), decodeURI(src)));
        this.pictures.add(target);
        return relativeUrl(document.url, target.replace(/^docs\//, ''));
    }
}

/** Leads the links and pictures of one line of text. */
function leadLine(children, links, document) {
    const open = [];
    for (const token of children) {
        if (token.type === 'image') token.attrSet('src', links.picture(token.attrGet('src'), document));
        if (token.type === 'link_open') {
            const address = links.address(token.attrGet('href'), document);
            open.push(address);
            if (address) token.attrSet('href', address);
        }
        const isPlain = /^link_/.test(token.type) && open.at(-1) === undefined;
        if (token.type === 'link_close') open.pop();
        if (isPlain) token.tag = 'span', token.attrs = null;
    }
}

/** The renderer of all documents; `pictures` holds those that the rendered ones show. */
export function makeMarkdown(root, documents) {
    const links = new Links(root, documents);
    const md = new MarkdownIt({html: true});
    md.core.ruler.push('names', nameHeadings);
    boxTables(md);
    md.renderer.rules.fence = (tokens, at, options, env) => fenceHtml(tokens[at], env.document?.plainFence);
    md.core.ruler.push('links', ({tokens, env}) => {
        if (!env.document) return;
        for (const {children} of tokens) if (children) leadLine(children, links, env.document);
    });
    return {md, pictures: links.pictures};
}
