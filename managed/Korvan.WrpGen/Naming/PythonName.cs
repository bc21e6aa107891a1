using System.Collections.Generic;
using System.Linq;
using System.Text;

namespace Korvan.WrpGen.Naming;

/// <summary>The one rule by which a managed identifier becomes a Python one.</summary>
internal static class PythonName
{
    // Names that were fixed before the rule was, and stay.
    private static readonly Dictionary<string, string> FixedNames = new()
    {
        ["AsMatrix2x2Array"] = "as_matrix_2x2_array",
        ["AsMatrix3x3Array"] = "as_matrix_3x3_array",
        ["AsMatrix4x4Array"] = "as_matrix_4x4_array",
        ["Rgb16Bpp555"] = "rgb_16_bpp_555",
    };

    private static readonly HashSet<string> Keywords =
    [
        "False", "None", "True", "and", "as", "assert", "async", "await", "break", "class", "continue", "def",
        "del", "elif", "else", "except", "finally", "for", "from", "global", "if", "import", "in", "is", "lambda",
        "nonlocal", "not", "or", "pass", "raise", "return", "try", "while", "with", "yield",
    ];

    /// <summary>Properties, methods, parameters and static properties.</summary>
    public static string Lower(string managed)
    {
        if (FixedNames.TryGetValue(managed, out string? name))
        {
            return name;
        }
        if (!managed.Any(char.IsLower))
        {
            return managed.ToLowerInvariant();
        }
        var result = new StringBuilder(managed.Length + 8);
        for (int i = 0; i < managed.Length; i++)
        {
            if (i > 0 && StartsWord(managed, i))
            {
                result.Append('_');
            }
            result.Append(char.ToLowerInvariant(managed[i]));
        }
        return result.ToString();
    }

    /// <summary>Fields and enum members.</summary>
    public static string Upper(string managed) => Lower(managed).ToUpperInvariant();

    /// <summary>A namespace component as a module name.</summary>
    public static string Module(string component) => component.ToLowerInvariant();

    public static bool IsKeyword(string name) => Keywords.Contains(name);

    private static bool StartsWord(string name, int at)
    {
        char before = name[at - 1];
        char here = name[at];
        bool lowerFollows = at + 1 < name.Length && char.IsLower(name[at + 1]);
        if (char.IsDigit(here))
        {
            return char.IsLower(before) && LettersFollowDigits(name, at);
        }
        return char.IsUpper(here) && (
            char.IsLower(before) ||
            (char.IsDigit(before) && lowerFollows) ||
            (char.IsUpper(before) && lowerFollows));
    }

    private static bool LettersFollowDigits(string name, int at)
    {
        int end = at;
        while (end < name.Length && char.IsDigit(name[end]))
        {
            end++;
        }
        return end < name.Length && char.IsLetter(name[end]);
    }
}
