// The extension: the companion as a language server, and programs in a terminal.
'use strict';

const vscode = require('vscode');
const {Companion} = require('./companion');
const {Programs} = require('./programs');

/** What of the settings the server is started with. */
const settingsOfServer = ['pozhil.companion.path', 'pozhil.transliteration'];

let companion;

function activate(context) {
    companion = new Companion();
    const programs = new Programs(() => companion.find());
    const command = (name, run) => vscode.commands.registerCommand(name, run);
    context.subscriptions.push(
        companion,
        programs,
        command('pozhil.run', () => programs.run()),
        command('pozhil.watch', () => programs.watch()),
        command('pozhil.stop', () => programs.stop()),
        command('pozhil.restart', () => companion.restart()),
        vscode.workspace.onDidChangeConfiguration(change => {
            if (settingsOfServer.some(name => change.affectsConfiguration(name))) companion.restart();
        }),
    );
    return companion.start();
}

function deactivate() {
    return companion?.stop();
}

module.exports = {activate, deactivate};
