using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.WrpGen.Emit.Stubs;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>
/// What help() shows of a method. One form has a signature that the interpreter reads; several are told one by one,
/// in the order of tries.
/// </summary>
internal static class MethodDocs
{
    private static readonly HashSet<string> Shadowed = [];

    /// <summary>A C string literal.</summary>
    public static string Literal(TypeModel type, MethodGroup group, bool isMixed)
    {
        MethodModel first = group.Overloads[0];
        bool hasSignature = !isMixed && group.Overloads.Count == 1 &&
            !first.Parameters.Any(parameter => PythonName.IsKeyword(parameter.PythonName));
        return Quote(hasSignature ? Signature(group, first) : Forms(type, group));
    }

    /// <summary>As a C string literal, the text of the function that sets a static property.</summary>
    public static string Literal(PropertyModel property) =>
        Quote($"set_{property.PythonName}(value, /)\n--\n\n{string.Join('\n', Docstring.Lines(property.Doc))}");

    // The notation that inspect.signature takes apart.
    private static string Signature(MethodGroup group, MethodModel overload)
    {
        IEnumerable<string> names = overload.Parameters.Select(parameter => parameter.PythonName);
        string list = string.Join(", ", group.IsStatic ? names : names.Prepend("$self"));
        return $"{group.PythonName}({list})\n--\n\n{string.Join('\n', Docstring.Lines(overload.Doc))}";
    }

    private static string Forms(TypeModel type, MethodGroup group)
    {
        var types = new PythonTypes(type.Module, Shadowed);
        IEnumerable<string> forms = group.Overloads.Select(overload =>
        {
            string parameters = string.Join(
                ", ", overload.Parameters.Select(parameter => $"{parameter.PythonName}: {types.Parameter(parameter)}"));
            string signature = $"{group.PythonName}({parameters}) -> {types.Result(overload.Result)}";
            IEnumerable<string> lines = Docstring.Lines(overload.Doc)
                .Select(line => line.Length > 0 ? "    " + line : line);
            return string.Join('\n', lines.Prepend(signature));
        });
        return string.Join("\n\n", forms);
    }

    private static string Quote(string text)
    {
        var literal = new StringBuilder("\"");
        foreach (char c in text)
        {
            literal.Append(c switch
            {
                '\n' => "\\n",
                '"' => "\\\"",
                '\\' => "\\\\",
                _ => c.ToString(),
            });
        }
        return literal.Append('"').ToString();
    }
}
