// இப்போது காட்டப்படும் பக்கம்
std::string g_currentPage = POZHIL_INITIAL_PAGE;

void செல்க(std::string pageName) { g_currentPage = pageName; }
