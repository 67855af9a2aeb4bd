            // ---- The host ----
            //
            // A page that is published: each file of the program lies beside it under a name that
            // changes with what it holds, and nobody waits at a terminal.

            const files = {{{ கோப்புகள் }}};

            const addressOf = name => files[name]?.address ?? name;
            const fetchFile = name => fetch(addressOf(name));
            // A host that compresses tells only the compressed size.
            const sizeOf = name => files[name].bytes;
            const noteProgram = () => {};
            const prepareImports = () => {};  // the program's script guards what it runs

            document.getElementById('slow').textContent =
                'எதிர்பார்த்ததைவிட நேரம் ஆகிறது. இணைய இணைப்பைப் பாருங்கள்; ' +
                'தேவையானால் பக்கத்தை மீண்டும் ஏற்றுங்கள்.';

            function reloadButton() {
                const again = element('button', 'மீண்டும் ஏற்று');
                again.onclick = () => location.reload();
                return again;
            }

            // An old page asks for files that a newer one no longer has.
            function showMissing() {
                showFailure('தளத்தை ஏற்ற முடியவில்லை',
                    'தளத்தின் ஒரு பகுதி கிடைக்கவில்லை. தளம் இப்போது புதுப்பிக்கப்பட்டிருக்கலாம்.', reloadButton());
            }

            function showBroken() {
                showFailure('தளத்தை ஏற்ற முடியவில்லை',
                    'தளம் வந்துகொண்டிருக்கும்போது இணைப்பு அறுந்தது. இணைய இணைப்பைப் பாருங்கள்.', reloadButton());
            }

            // The browser doesn't say why a file of the program hasn't come.
            const showLost = name => fetchFile(name)
                .then(answer => answer.ok ? showBroken() : showMissing(), showBroken);

