-- Diagnostics, hover, definition and formatting through Neovim's own client.
local patience = 60000

local function fail(words)
    io.stdout:write(words .. "\n")
    vim.cmd("cquit 1")
end

local function expect(holds, words)
    if not holds then fail(words) end
end

local function wait_for(words, look)
    expect(vim.wait(patience, look, 20), "waited in vain for " .. words)
end

local function open(name)
    vim.cmd("edit " .. name)
    local client = vim.lsp.start_client({
        name = "pozhil",
        cmd = {vim.env.POZHIL_LANGUAGE_SERVER, "lsp"},
        root_dir = vim.fn.getcwd(),
    })
    expect(client, "the server doesn't start")
    vim.lsp.buf_attach_client(0, client)
    wait_for("the server", function() return #vim.lsp.buf_get_clients(0) > 0 end)
    return client
end

local function ask(method, params)
    local answers = vim.lsp.buf_request_sync(0, method, params, patience)
    for _, answer in pairs(answers or {}) do
        expect(answer.error == nil, method .. ": " .. vim.inspect(answer.error))
        return answer.result
    end
    fail("no answer to " .. method)
end

local function run()
    local client = open("wrong.பொழில்")
    wait_for("diagnostics", function() return #vim.diagnostic.get(0) > 0 end)
    local found = vim.diagnostic.get(0)[1]
    expect(found.lnum == 0 and found.message:find("“", 1, true), vim.inspect(found))
    -- Neovim tells columns in bytes.
    expect(found.col == #"அச்சிடு(", "column " .. found.col)
    vim.lsp.stop_client(client)

    client = open("right.பொழில்")
    vim.api.nvim_win_set_cursor(0, {5, 3})
    local hover = ask("textDocument/hover", vim.lsp.util.make_position_params())
    expect(hover.contents.value:find("செயல் வணங்கு(பெயர்)", 1, true), vim.inspect(hover))

    vim.lsp.buf.definition()
    wait_for("the definition", function() return vim.api.nvim_win_get_cursor(0)[1] == 2 end)

    vim.lsp.buf.formatting_sync({}, patience)
    local line = vim.api.nvim_buf_get_lines(0, 2, 3, false)[1]
    expect(line == '    அச்சிடு("வணக்கம்", பெயர்)', line)

    -- An edit of the buffer reaches the server as Neovim tells it.
    vim.api.nvim_buf_set_lines(0, 4, 5, false, {'வணங்கு("கண்ணன்"'})
    wait_for("the finding", function() return #vim.diagnostic.get(0) > 0 end)
    vim.api.nvim_buf_set_lines(0, 4, 5, false, {'வணங்கு("கண்ணன்")'})
    wait_for("its end", function() return #vim.diagnostic.get(0) == 0 end)
    vim.lsp.stop_client(client)
end

local succeeded, failure = pcall(run)
if not succeeded then fail(tostring(failure)) end
io.stdout:write("all right\n")
vim.cmd("qall!")
