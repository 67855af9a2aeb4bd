" Neovim starts the companion for a source, hears of its findings, and says once where there is none.
lua << LUA
local patience = 60000
local function expect(what, holds) if not holds then vim.fn.Fail(what) end end
local function wait_for(what, look) expect("waited in vain for " .. what, vim.wait(patience, look, 20)) end
local function notes(word)
    if vim.fn.filereadable(vim.env.POZHIL_NOTES) == 0 then return {} end
    return vim.tbl_filter(function(line) return line:find(word, 1, true) end, vim.fn.readfile(vim.env.POZHIL_NOTES))
end

local told = {}
vim.notify = function(words) table.insert(told, words) end
vim.fn.writefile({"அச்சிடு(1)"}, "முதல்.பொழில்")
vim.fn.writefile({"அச்சிடு(2)"}, "அடுத்தது.பொழில்")

vim.g.pozhil_companion = "/nowhere/pozhil-thunai"
vim.cmd("edit முதல்.பொழில்")
vim.cmd("edit அடுத்தது.பொழில்")
expect("told " .. #told .. " times", #told == 1)
expect("told in Tamil: " .. tostring(told[1]), told[1] and told[1]:find("g:pozhil_companion", 1, true))
vim.cmd("%bwipeout!")

vim.g.pozhil_companion = vim.env.POZHIL_ROOT .. "/tests/editors/stand_in_companion.mjs"
vim.g.pozhil_transliteration = 0
vim.cmd("edit முதல்.பொழில்")
wait_for("a finding", function() return #vim.diagnostic.get(0) == 1 end)
expect("the message", vim.diagnostic.get(0)[1].message == "பிழை")
expect("omnifunc is " .. vim.bo.omnifunc, vim.bo.omnifunc == "v:lua.require'pozhil'.omnifunc")
expect("started by lsp", #notes('["started","lsp"]') == 1)
expect("the options", #notes('["initialize",{"transliteration":false}]') == 1)

vim.cmd("edit அடுத்தது.பொழில்")
wait_for("the second finding", function() return #vim.diagnostic.get(0) == 1 end)
expect("one server for a folder", #notes('["started"') == 1)

-- Words are found by their sound, and stand in the place of what was typed.
vim.cmd("%bwipeout!")
vim.g.pozhil_companion = vim.env.POZHIL_COMPANION
vim.g.pozhil_transliteration = 1
vim.fn.mkdir("வேறு")
vim.fn.writefile({'அச்சிடு("அம்மா", 1)', "    achch", "enil"}, "வேறு/சொற்கள்.பொழில்")
vim.cmd("edit வேறு/சொற்கள்.பொழில்")
local pozhil = require("pozhil")
local function first_offered(line, from)
    vim.api.nvim_win_set_cursor(0, {line, #vim.fn.getline(line)})
    vim.cmd("startinsert!")
    local start = pozhil.omnifunc(1)
    expect("begins at " .. tostring(start) .. " in line " .. line, start == from)
    local list = pozhil.omnifunc(0).words
    return list[1] and list[1].word or "nothing"
end
wait_for("the companion", function()
    local clients = vim.lsp.get_active_clients()
    return #clients > 0 and vim.lsp.buf_is_attached(0, clients[#clients].id) and clients[#clients].initialized
end)
vim.api.nvim_win_set_cursor(0, {2, 9})
local first = first_offered(2, 4)
expect("offered for achch: " .. first, first:find("அச்சிடு", 1, true) == 1)
first = first_offered(3, 0)
expect("offered for enil: " .. first, first:find("எனில்", 1, true) == 1)

-- Where Neovim itself keeps one server for a folder, it is asked to.
local asked
vim.lsp.start = function(config, options) asked = {config, options}; return 7 end
expect("what it answers", require("pozhil").start(vim.api.nvim_get_current_buf()) == 7)
expect("the command", vim.deep_equal(asked[1].cmd, {vim.g.pozhil_companion, "lsp"}))
expect("the buffer", asked[2].bufnr == vim.api.nvim_get_current_buf())
LUA
