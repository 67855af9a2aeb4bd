--- Starts the companion's language server for buffers of Neovim, one for each folder.
local M = {}

local clients = {} --- By folder: what runs there, for a Neovim that doesn't keep that itself (before 0.8).
local was_told = false

local function companion()
    return vim.g.pozhil_companion or "pozhil-thunai"
end

local function tell_missing()
    if was_told then return end
    was_told = true
    vim.notify(
        "பொழில்-துணை கிடைக்கவில்லை. அதை நிறுவு, அல்லது அதன் இடத்தை g:pozhil_companion-இல் சொல்.",
        vim.log.levels.WARN)
end

--- What the server offers at the cursor, in its order: a list of items, each with the range that it replaces.
local function offers()
    local answers = vim.lsp.buf_request_sync(0, "textDocument/completion", vim.lsp.util.make_position_params(0, "utf-16"), 2000)
    local items = {}
    for _, answer in pairs(answers or {}) do
        local result = answer.result or {}
        vim.list_extend(items, result.items or result)
    end
    table.sort(items, function(a, b) return (a.sortText or a.label) < (b.sortText or b.label) end)
    return items
end

local function word_of(item)
    return { word = item.textEdit.newText, abbr = item.label, menu = item.detail, dup = 1, equal = 1 }
end

local offered = {}

--- Neovim's own keeps only words that begin with what was typed; here `achchidu` finds அச்சிடு.
function M.omnifunc(findstart)
    if findstart == 0 then return { words = vim.tbl_map(word_of, offered), refresh = "always" } end
    offered = vim.tbl_filter(function(item) return item.textEdit ~= nil end, offers())
    if #offered == 0 then return -3 end
    return vim.str_byteindex(vim.api.nvim_get_current_line(), offered[1].textEdit.range.start.character, true)
end

local function attach(_, bufnr)
    vim.bo[bufnr].omnifunc = "v:lua.require'pozhil'.omnifunc"
    vim.bo[bufnr].tagfunc = "v:lua.vim.lsp.tagfunc"
    if vim.fn.mapcheck("K", "n") == "" then
        vim.api.nvim_buf_set_keymap(bufnr, "n", "K", "<Cmd>lua vim.lsp.buf.hover()<CR>", { noremap = true })
    end
end

--- What the server is started with; users may hand it to a starter of their own.
function M.config(bufnr)
    local name = vim.api.nvim_buf_get_name(bufnr)
    return {
        name = "pozhil",
        cmd = { companion(), "lsp" },
        root_dir = name == "" and vim.fn.getcwd() or vim.fn.fnamemodify(name, ":p:h"),
        init_options = { transliteration = vim.g.pozhil_transliteration ~= 0 },
        on_attach = attach,
    }
end

--- Starts the server for a buffer, or lets the one of its folder know of it. nil if there is no companion.
function M.start(bufnr)
    if vim.fn.executable(companion()) == 0 then
        tell_missing()
        return nil
    end
    local config = M.config(bufnr)
    if vim.lsp.start then return vim.lsp.start(config, { bufnr = bufnr }) end
    local id = clients[config.root_dir]
    if not id or not vim.lsp.get_client_by_id(id) or vim.lsp.client_is_stopped(id) then
        id = vim.lsp.start_client(config)
        clients[config.root_dir] = id
    end
    if id then vim.lsp.buf_attach_client(bufnr, id) end
    return id
end

return M
