// The grammar for Kate: whole as XML, and each name in it means something.
import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {test} from 'node:test';

const text = readFileSync(new URL('../../editors/kate/pozhil.xml', import.meta.url), 'utf8');
const tags = [...text.replace(/<!--.*?-->|<[?!][^>]*>/gs, '').matchAll(/<(\/?)([A-Za-z]+)((?:\s+[A-Za-z]+="[^"<]*")*)\s*(\/?)>/g)]
    .map(([, closing, name, rest, alone]) => ({
        name, isEnd: closing !== '', isAlone: alone !== '',
        ...Object.fromEntries([...rest.matchAll(/([A-Za-z]+)="([^"]*)"/g)].map(([, key, value]) => [`@${key}`, value])),
    }));

test('each tag is closed in its turn, and nothing else stands there', () => {
    const open = [];
    for (const {name, isEnd, isAlone} of tags) {
        if (isEnd) assert.equal(open.pop(), name);
        else if (!isAlone) open.push(name);
    }
    assert.deepEqual(open, []);
    assert.equal(text.match(/</g).length, tags.length + 3, 'a line of XML, one of its kind, a comment');
    assert.doesNotMatch(text, /&(?!(?:lt|gt|amp|quot);)/);
});

test('each context, list and style that is named is there', () => {
    const called = (tag, key) => tags.filter(({name, isEnd}) => name === tag && !isEnd).map(row => row[key]);
    const contexts = new Set(called('context', '@name'));
    const styles = new Set(called('itemData', '@name'));
    const lists = new Set(called('list', '@name'));
    const steps = tags.flatMap(row => [row['@context'], row['@lineEndContext'], row['@fallthroughContext']]).filter(Boolean);
    for (const step of steps) {
        if (!['#stay', '#pop'].includes(step)) assert.ok(contexts.has(step.replace('#pop!', '')), step);
    }
    for (const style of tags.map(row => row['@attribute']).filter(Boolean)) assert.ok(styles.has(style), style);
    const keywords = called('keyword', '@String');
    assert.deepEqual([...lists].sort(), keywords.sort(), 'each list is used once');
    for (const pattern of called('RegExpr', '@String')) {
        new RegExp(pattern.replaceAll('&lt;', '<').replaceAll('&quot;', '"'), 'u');
    }
});
