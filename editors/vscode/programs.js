// Programs in a terminal: run, run again at each save, stopped.
'use strict';

const path = require('node:path');
const vscode = require('vscode');
const {compilerBeside} = require('./places');

/**
 * A terminal whose program has ended would close and take the output along, so a shell waits behind it. Ctrl+C
 * is meant for the program alone.
 */
const waitBehind = `trap : INT; "$@"; printf '\\n\\033[2mமுடிந்தது. மூட Enter.\\033[0m '; read -r _`;

class Programs {
    /** `find` gives the companion's file, or undefined after it told the user. */
    constructor(find) {
        this.find = find;
        this.closing = vscode.window.onDidCloseTerminal(terminal => {
            if (terminal === this.terminal) this.forget();
        });
    }

    async run() {
        const companion = this.find();
        if (companion) await this.open(file => [companion, 'run', file]);
    }

    async watch() {
        const companion = this.find();
        if (!companion) return;
        const compiler = compilerBeside(companion);
        if (compiler) {
            await this.open(file => [compiler, '--கண்காணி', file]);
        } else {
            vscode.window.showWarningMessage(`'${companion}' அருகில் பொழில் இல்லை.`);
        }
    }

    stop() {
        const terminal = this.terminal;
        this.forget();
        terminal?.dispose();
    }

    dispose() {
        this.closing.dispose();
        this.stop();
    }

    async open(commandFor) {
        const document = vscode.window.activeTextEditor?.document;
        if (document?.languageId !== 'pozhil') {
            vscode.window.showWarningMessage('முதலில் ஒரு பொழில் நிரலைத் திற.');
            return;
        }
        if (!await document.save() || document.uri.scheme !== 'file') {
            vscode.window.showWarningMessage('நிரலைச் சேமித்த பின்பே இயக்க முடியும்.');
            return;
        }
        this.stop();
        const file = document.uri.fsPath;
        this.terminal = vscode.window.createTerminal({
            name: 'பொழில்',
            cwd: path.dirname(file),
            shellPath: '/bin/sh',
            shellArgs: ['-c', waitBehind, 'sh', ...commandFor(file)],
        });
        this.terminal.show();
        vscode.commands.executeCommand('setContext', 'pozhil.isRunning', true);
    }

    forget() {
        this.terminal = undefined;
        vscode.commands.executeCommand('setContext', 'pozhil.isRunning', false);
    }
}

module.exports = {Programs};
