// The extension with a stand-in for VS Code and one for the companion: the client is the real one.
import assert from 'node:assert/strict';
import {chmodSync, copyFileSync, existsSync, mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import Module, {createRequire} from 'node:module';
import {tmpdir} from 'node:os';
import {delimiter, dirname, join} from 'node:path';
import {execFileSync} from 'node:child_process';
import {after, afterEach, beforeEach, test} from 'node:test';
import {setTimeout as pause} from 'node:timers/promises';
import {fileURLToPath} from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const root = join(here, '../../..');
const require = createRequire(import.meta.url);
const {vscode, seen, fire, fileUri} = require('./stand_in.cjs');

// A busy machine can come back to the extension when the process that it started is over.
const processes = require('node:child_process');
const {spawn} = processes;
let pauseBehindStart = 0;  // milliseconds
processes.spawn = (...words) => {
    const child = spawn(...words);
    if (pauseBehindStart) Atomics.wait(new Int32Array(new SharedArrayBuffer(4)), 0, 0, pauseBehindStart);
    return child;
};

const load = Module._load;
Module._load = (name, ...rest) => name === 'vscode' ? vscode : load(name, ...rest);
const extension = require(join(root, 'editors/vscode/extension.js'));
const {programAt, compilerBeside} = require(join(root, 'editors/vscode/places.js'));

const work = mkdtempSync(join(tmpdir(), 'pozhil-extension-'));
// Stand-ins that are ending still write their notes, behind what has been removed already.
after(async () => {
    for (const end = Date.now() + 60_000; ; await pause(100)) {
        try {
            return rmSync(work, {recursive: true});
        } catch (error) {
            if (Date.now() > end) throw error;
        }
    }
});
const notesFile = join(work, 'notes');
process.env.POZHIL_NOTES = notesFile;
process.env.HOME = join(work, 'home');

/** A program of its own in a folder of its own. */
function place(folder, name, text) {
    mkdirSync(join(work, folder), {recursive: true});
    const file = join(work, folder, name);
    if (text) {
        writeFileSync(file, text);
        chmodSync(file, 0o755);
    } else {
        copyFileSync(join(here, '../stand_in_companion.mjs'), file);
    }
    return file;
}

const notes = word => existsSync(notesFile)
    ? readFileSync(notesFile, 'utf8').trim().split('\n').map(line => JSON.parse(line)).filter(([kind]) => kind === word)
    : [];

async function until(what, holds) {
    for (const end = Date.now() + 60_000; !holds(); await pause(10)) {
        if (Date.now() > end) assert.fail(`waited in vain for ${what}`);
    }
}

function open(name, text) {
    const file = join(work, name);
    writeFileSync(file, text);
    const document = {
        uri: fileUri(file), languageId: 'pozhil', version: 1, isClosed: false, lineCount: 1,
        getText: () => text, save: async () => document.saves !== false,
    };
    seen.documents.push(document);
    seen.active = document;
    fire('opened', document);
    return document;
}

const companion = place('bin', 'pozhil-thunai');
const compiler = place('bin', 'pozhil', '#!/bin/sh\n');
let context;
const activate = () => extension.activate(context = {subscriptions: []});

beforeEach(() => {
    rmSync(notesFile, {force: true});
    Object.assign(seen, {choice: undefined, active: undefined, documents: []});
    for (const list of [seen.warnings, seen.errors, seen.executed, seen.terminals]) list.length = 0;
    seen.diagnostics.clear();
    seen.settings = {'pozhil.companion.path': companion};
});

afterEach(async () => {
    await extension.deactivate();
    for (const part of context?.subscriptions ?? []) part.dispose();
    context = undefined;
});

test('the companion is started, told the settings, and shown', async () => {
    await activate();
    assert.deepEqual(notes('started'), [['started', 'lsp']]);
    assert.deepEqual(notes('initialize'), [['initialize', {transliteration: true}]]);
    assert.match(seen.status.text, /இயங்குகிறது/);
    assert.equal(seen.status.severity, vscode.LanguageStatusSeverity.Information);
    const {uri} = open('முதல்.பொழில்', 'அச்சிடு(1)');
    await until('a finding', () => seen.diagnostics.has(uri.toString()));
    assert.deepEqual(seen.diagnostics.get(uri.toString()).map(({message}) => message), ['பிழை']);
    assert.deepEqual([seen.warnings, seen.errors], [[], []]);
});

test('a changed setting starts it again, another leaves it alone', async () => {
    await activate();
    fire('settings', {affectsConfiguration: name => name === 'pozhil.trace.server'});
    seen.settings['pozhil.transliteration'] = false;
    fire('settings', {affectsConfiguration: name => name === 'pozhil.transliteration'});
    await until('another start', () => notes('initialize').length === 2);
    assert.deepEqual(notes('initialize')[1], ['initialize', {transliteration: false}]);
    await until('the status', () => /இயங்குகிறது/.test(seen.status.text));
    assert.equal(notes('started').length, 2);
});

test('one that is missing is told in one line, and found when its place is set', async () => {
    seen.settings['pozhil.companion.path'] = '/nowhere/pozhil-thunai';
    seen.choice = 'அமைப்பைத் திற';
    await activate();
    assert.equal(seen.warnings.length, 1);
    assert.match(seen.warnings[0], /^பொழில்-துணை கிடைக்கவில்லை\. .*scripts\/install\.sh.*$/);
    assert.equal(seen.status.severity, vscode.LanguageStatusSeverity.Warning);
    await until('the settings', () => seen.executed.some(([name]) => name === 'workbench.action.openSettings'));
    seen.settings['pozhil.companion.path'] = companion;
    fire('settings', {affectsConfiguration: name => name === 'pozhil.companion.path'});
    await until('the start', () => /இயங்குகிறது/.test(seen.status.text));
    assert.deepEqual([seen.warnings.length, seen.errors], [1, []]);
});

test('one that is no server is told once, in Tamil', async () => {
    seen.settings['pozhil.companion.path'] = place('old', 'pozhil-thunai', '#!/bin/sh\nhead -c 600 >/dev/null\nexit 2\n');
    await activate();
    assert.equal(seen.warnings.length, 1);
    assert.match(seen.warnings[0], /^பொழில்-துணை வேலை செய்யவில்லை/);
    assert.deepEqual(seen.errors, []);
    assert.equal(seen.status.severity, vscode.LanguageStatusSeverity.Warning);
});

test('one that never answers keeps nobody from setting another', async () => {
    seen.settings['pozhil.companion.path'] = place('mute', 'pozhil-thunai', '#!/bin/sh\nexec sleep 600\n');
    activate();
    await until('the start', () => /தொடங்குகிறது/.test(seen.status.text));
    seen.settings['pozhil.companion.path'] = companion;
    fire('settings', {affectsConfiguration: name => name === 'pozhil.companion.path'});
    await until('the other', () => /இயங்குகிறது/.test(seen.status.text));
});

test('one that has ended before it was asked is told once, in Tamil', async () => {
    seen.settings['pozhil.companion.path'] = place('gone', 'pozhil-thunai', '#!/bin/sh\nexit 2\n');
    pauseBehindStart = 500;
    await activate();
    pauseBehindStart = 0;
    assert.equal(seen.warnings.length, 1);
    assert.match(seen.warnings[0], /^பொழில்-துணை வேலை செய்யவில்லை/);
    assert.deepEqual(seen.errors, []);
});

test('one that keeps ending is started a few times more, then left', async () => {
    await activate();
    open('முடிவு.பொழில்', 'exit');
    await until('the line', () => seen.warnings.length === 1);
    assert.match(seen.warnings[0], /^பொழில்-துணை வேலை செய்யவில்லை/);
    assert.equal(notes('started').length, 4);
    assert.deepEqual(seen.errors, []);
});

test('a program is run by the companion, and the terminal waits behind it', async () => {
    await activate();
    const {uri} = open("என் 'நிரல்'.பொழில்", 'அச்சிடு(1)');
    await seen.commands.get('pozhil.run')();
    const [{options, isShown}] = seen.terminals;
    assert.ok(isShown);
    assert.equal(options.cwd, work);
    assert.deepEqual(options.shellArgs.slice(-3), [companion, 'run', uri.fsPath]);
    assert.deepEqual(seen.executed.at(-1), ['setContext', 'pozhil.isRunning', true]);
    const args = [...options.shellArgs.slice(0, -3), '/bin/echo', 'அ  ஆ', "'"];
    assert.match(execFileSync(options.shellPath, args, {input: '\n', encoding: 'utf8'}), /^அ {2}ஆ '\n\n.*முடிந்தது/);
});

test('watching is the compiler beside the companion; the former program is stopped', async () => {
    await activate();
    const {uri} = open('கண்.பொழில்', 'அச்சிடு(1)');
    await seen.commands.get('pozhil.run')();
    await seen.commands.get('pozhil.watch')();
    assert.deepEqual(seen.terminals.map(({isGone}) => isGone ?? false), [true, false]);
    assert.deepEqual(seen.terminals[1].options.shellArgs.slice(-3), [compiler, '--கண்காணி', uri.fsPath]);
    await seen.commands.get('pozhil.stop')();
    assert.ok(seen.terminals[1].isGone);
    assert.deepEqual(seen.executed.at(-1), ['setContext', 'pozhil.isRunning', false]);
});

test('what cannot be run is told', async () => {
    await activate();
    await seen.commands.get('pozhil.run')();
    open('சேமி.பொழில்', 'அ').saves = false;
    await seen.commands.get('pozhil.run')();
    assert.deepEqual(seen.warnings, ['முதலில் ஒரு பொழில் நிரலைத் திற.', 'நிரலைச் சேமித்த பின்பே இயக்க முடியும்.']);
    assert.deepEqual(seen.terminals, []);
});

test('places of programs', () => {
    const mine = place('home/.local/bin', 'only-mine', '#!/bin/sh\n');
    writeFileSync(join(work, 'bin', 'no-program'), '');
    const search = [join(work, 'nowhere'), join(work, 'bin'), '.'].join(delimiter);
    assert.equal(programAt('pozhil-thunai', search), companion);
    assert.equal(programAt('no-program', search), undefined);
    assert.equal(programAt('only-mine', search), mine);
    assert.equal(programAt('~/.local/bin/only-mine', search), mine);
    assert.equal(programAt('./bin/pozhil-thunai', search), undefined);
    assert.equal(compilerBeside(companion), compiler);
    assert.equal(compilerBeside(mine), undefined);
});
