#include "nga_Completion.h"

#include <CLI/CLI.hpp>

#include "cls_ClassMetadata.h"
#include "nga_Schema.h"

namespace nga {

namespace {

/// One verb as shells see it.
struct Verb {
    std::string name;
    std::string help;
    std::vector<std::string> options;
    std::string words;  ///< what its first argument may be, where that is no file
};

std::vector<Verb> VerbsOf(CLI::App& tool) {
    std::vector<Verb> verbs;
    std::vector<std::string> common;
    for (CLI::Option const* option : tool.get_options())
        for (std::string const& name : option->get_lnames()) common.push_back("--" + name);
    for (CLI::App* sub : tool.get_subcommands([](CLI::App*) { return true; })) {
        Verb verb{sub->get_name(), sub->get_description(), common, std::string()};
        for (CLI::Option const* option : sub->get_options())
            for (std::string const& name : option->get_lnames())
                if (name != "help") verb.options.push_back("--" + name);
        if (verb.name == "schema")
            for (cls_ClassMetadata const* metadata : SchemaClasses())
                verb.words += std::string(metadata->Name().View()) + " ";
        if (verb.name == "completion") verb.words = "bash zsh fish";
        verbs.push_back(verb);
    }
    for (Verb& verb : verbs)
        if (verb.name == "help")
            for (Verb const& other : verbs) verb.words += other.name + " ";
    return verbs;
}

std::string Joined(std::vector<std::string> const& words) {
    std::string text;
    for (std::string const& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

std::string Names(std::vector<Verb> const& verbs) {
    std::string text;
    for (Verb const& verb : verbs) text += (text.empty() ? "" : " ") + verb.name;
    return text;
}

std::string Bash(std::vector<Verb> const& verbs) {
    std::string text =
        "_nga() {\n"
        "    local word=\"${COMP_WORDS[COMP_CWORD]}\" before=\"${COMP_WORDS[COMP_CWORD-1]}\"\n"
        "    local words=\"\"\n"
        "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
        "        COMPREPLY=($(compgen -W \"" +
        Names(verbs) +
        " --help --version\" -- \"$word\"))\n"
        "        return\n"
        "    fi\n"
        "    if [ \"$before\" = \"--on-conflict\" ]; then\n"
        "        COMPREPLY=($(compgen -W \"error keep replace\" -- \"$word\"))\n"
        "        return\n"
        "    fi\n"
        "    case \"${COMP_WORDS[1]}:$word\" in\n";
    for (Verb const& verb : verbs) {
        text += "        " + verb.name + ":-*) words=\"" + Joined(verb.options) + "\" ;;\n";
        if (!verb.words.empty())
            text += "        " + verb.name + ":*) words=\"" + verb.words + "\" ;;\n";
    }
    text +=
        "    esac\n"
        "    if [ -n \"$words\" ]; then\n"
        "        COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
        "    else\n"
        "        COMPREPLY=($(compgen -f -- \"$word\"))\n"
        "    fi\n"
        "}\n"
        "complete -o filenames -F _nga nga\n";
    return text;
}

std::string Zsh(std::vector<Verb> const& verbs) {
    std::string text =
        "#compdef nga\n"
        "_nga() {\n"
        "    if (( CURRENT == 2 )); then\n"
        "        local -a verbs=(\n";
    for (Verb const& verb : verbs) text += "            '" + verb.name + ":" + verb.help + "'\n";
    text +=
        "        )\n"
        "        _describe verb verbs\n"
        "        return\n"
        "    fi\n"
        "    if [[ ${words[CURRENT-1]} == --on-conflict ]]; then\n"
        "        compadd error keep replace\n"
        "        return\n"
        "    fi\n"
        "    case ${words[2]}:${words[CURRENT]} in\n";
    for (Verb const& verb : verbs) {
        text += "        " + verb.name + ":-*) compadd -- " + Joined(verb.options) + " ;;\n";
        if (!verb.words.empty())
            text += "        " + verb.name + ":*) compadd " + verb.words + " ;;\n";
    }
    text +=
        "        *) _files ;;\n"
        "    esac\n"
        "}\n"
        "compdef _nga nga\n";
    return text;
}

std::string Fish(std::vector<Verb> const& verbs) {
    std::string text;
    for (Verb const& verb : verbs) {
        text += "complete -c nga -n __fish_use_subcommand -f -a " + verb.name + " -d '" +
                verb.help + "'\n";
        std::string const here =
            "complete -c nga -n '__fish_seen_subcommand_from " + verb.name + "'";
        for (std::string const& option : verb.options)
            text += here + " -l " + option.substr(2) +
                    (option == "--on-conflict" ? " -x -a 'error keep replace'\n" : "\n");
        if (!verb.words.empty()) text += here + " -f -a '" + verb.words + "'\n";
    }
    return text;
}

}  // namespace

std::string CompletionScript(CLI::App& tool, std::string const& shell) {
    std::vector<Verb> const verbs = VerbsOf(tool);
    if (shell == "zsh") return Zsh(verbs);
    if (shell == "fish") return Fish(verbs);
    return Bash(verbs);
}

}  // namespace nga
