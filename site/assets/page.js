// What a page does besides being read: the menu of narrow screens, and copying programs.
(() => {
    const menu = document.querySelector('.menu-switch');
    menu.hidden = false;
    document.documentElement.classList.add('has-scripts');
    const show = isOpen => {
        menu.setAttribute('aria-expanded', isOpen);
        document.body.classList.toggle('menu-open', isOpen);
    };
    menu.addEventListener('click', () => show(menu.getAttribute('aria-expanded') !== 'true'));
    document.addEventListener('keydown', event => { if (event.key === 'Escape') show(false); });

    // A menu that is longer than the window opens where the page stands in it.
    const here = document.querySelector('.menu [aria-current]');
    const side = document.querySelector('.menu');
    if (here) side.scrollTop = here.offsetTop - side.clientHeight / 2;

    function copied(text) {
        if (navigator.clipboard && isSecureContext) return navigator.clipboard.writeText(text);
        const field = document.createElement('textarea');
        field.value = text;
        document.body.append(field);
        field.select();
        const isDone = document.execCommand('copy');
        field.remove();
        return isDone ? Promise.resolve() : Promise.reject(new Error('copy'));
    }

    for (const button of document.querySelectorAll('.copy')) {
        button.hidden = false;
        button.addEventListener('click', async () => {
            const before = button.textContent;
            const text = button.closest('figure').querySelector('code').textContent;
            button.textContent = await copied(text).then(() => 'நகலானது', () => 'முடியவில்லை');
            setTimeout(() => { button.textContent = before; }, 1500);
        });
    }
})();
