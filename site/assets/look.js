// Light or dark: the system's wish, unless the reader chose. In the head, so that no page flashes.
(() => {
    const key = 'pozhil-look';
    const page = document.documentElement;
    // A browser may refuse to keep anything for a page from the disk: the choice is the page's then.
    const kept = () => { try { return localStorage.getItem(key); } catch { return null; } };
    const keep = look => { try { localStorage.setItem(key, look); } catch { /* as said above */ } };
    const look = () => page.dataset.look ?? (matchMedia('(prefers-color-scheme: dark)').matches ? 'dark' : 'light');

    if (kept()) page.dataset.look = kept();
    addEventListener('DOMContentLoaded', () => {
        const button = document.querySelector('.look-switch');
        button.hidden = false;
        button.addEventListener('click', () => {
            page.dataset.look = look() === 'dark' ? 'light' : 'dark';
            keep(page.dataset.look);
        });
    });
})();
