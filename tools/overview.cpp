#include "tools/overview.h"

#include "tools/families.h"

namespace kesto::tools {

using namespace model;

namespace {

constexpr int width = 400, margin = 10, line = 20, mark = 18;

constexpr const char style[] = R"(<style>
text { font: 12px "DejaVu Sans Mono", Menlo, Consolas, monospace; fill: #1d2733 }
.ground { fill: #ffffff }
.module { font: bold 17px sans-serif }
.family { font: bold 13px sans-serif }
.box { fill: #f1f5f9; stroke: #b8c4d0 }
.mark { fill: #ffffff; stroke: #8393a5 }
.letter { font: 11px sans-serif; text-anchor: middle }
.mirror { font: 11px sans-serif; fill: #47586b }
a:hover text { text-decoration: underline }
@media (prefers-color-scheme: dark) {
  text { fill: #e3e9f0 } .ground { fill: #10161d } .box { fill: #1b2530; stroke: #3b4a5a }
  .mark { fill: #10161d; stroke: #6d7f92 } .mirror { fill: #a9b8c8 }
}
</style>
)";

class Drawing {
public:
    void module(const Module& module)
    {
        y_ += 16;
        text("module", margin, y_ + 16,
             link(module.name + ".md", module.name + ", " + std::to_string(module.messages.size()) + " messages"));
        y_ += 28;
        for (const Family& family : families())
            if (module.name == family.module)
                draw(family);
    }

    std::string finished() const
    {
        const std::string size = std::to_string(width) + "\" height=\"" + std::to_string(y_ + margin);
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + size + "\" viewBox=\"0 0 " +
               std::to_string(width) + " " + std::to_string(y_ + margin) +
               "\" role=\"img\" aria-label=\"Modules and families of messages\">\n" + style +
               "<rect class=\"ground\" width=\"100%\" height=\"100%\"/>\n" + body_ + "</svg>\n";
    }

private:
    static std::string link(const std::string& target, const std::string& shown)
    {
        return "<a href=\"" + target + "\" target=\"_top\">" + shown + "</a>";
    }

    static std::string page_of(const Message& message) { return message.module + ".md#" + message.name; }

    void text(const char* kind, int x, int y, const std::string& content)
    {
        body_ += "<text class=\"" + std::string(kind) + "\" x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) +
                 "\">" + content + "</text>\n";
    }

    void rectangle(const char* kind, int x, int y, int wide, int high)
    {
        body_ += "<rect class=\"" + std::string(kind) + "\" x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) +
                 "\" width=\"" + std::to_string(wide) + "\" height=\"" + std::to_string(high) + "\" rx=\"3\"/>\n";
    }

    // One message of a row as a letter that links to it.
    void letter(int place, const char* shown, const Message* message)
    {
        if (message == nullptr)
            return;
        const int x = width - 2 * margin - (3 - place) * mark;
        rectangle("mark", x, y_ + 3, mark - 3, line - 5);
        text("letter", x + (mark - 3) / 2, y_ + 14, link(page_of(*message), shown));
    }

    void draw(const Family& family)
    {
        int lines = 0;
        for (const char* root : family.roots) {
            const Message* const row = members_of(root).row;
            lines += 1 + (row != nullptr && mirrored(*row) != nullptr);
        }
        rectangle("box", margin, y_, width - 2 * margin, 24 + lines * line + 4);
        text("family", margin + 8, y_ + 17, family.title);
        y_ += 24;
        for (const char* root : family.roots) {
            const Members members = members_of(root);
            text("name", margin + 8, y_ + 14, link(page_of(*members.row), root));
            letter(0, "K", members.key);
            letter(1, "U", members.update);
            letter(2, "D", members.remove);
            y_ += line;
            if (const Message* const table = mirrored(*members.row)) {
                text("mirror", margin + 24, y_ + 12, "repeats " + link(page_of(*table), table->name));
                y_ += line;
            }
        }
        y_ += 12;
    }

    int y_ = 0;
    std::string body_;
};

}   // namespace

std::string overview_svg()
{
    Drawing drawing;
    for (const Module& module : catalogue().modules)
        drawing.module(module);
    return drawing.finished();
}

}   // namespace kesto::tools
