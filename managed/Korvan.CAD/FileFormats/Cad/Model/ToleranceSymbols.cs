using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The signs of ISO 1101 that tolerance fonts have at the lower case letters, as characters of
/// Unicode.</summary>
internal static class ToleranceSymbols
{
    internal static string Translate(string letters)
    {
        var result = new StringBuilder(letters.Length);
        foreach (char c in letters)
        {
            result.Append(Translate(c));
        }

        return result.ToString();
    }

    private static string Translate(char letter) => letter switch
    {
        'a' => "\u2220",
        'b' => "\u27c2",
        'c' => "\u23e5",
        'd' => "\u2313",
        'e' => "\u25cb",
        'f' => "\u2afd",
        'g' => "\u232d",
        'h' => "\u2197",
        'i' => "\u232f",
        'j' => "\u2316",
        'k' => "\u2312",
        'l' => "\u24c1",
        'm' => "\u24c2",
        'n' => "\u2300",
        'p' => "\u24c5",
        'r' => "\u25ce",
        's' => "\u24c8",
        't' => "\u2330",
        'u' => "\u23e4",
        'v' => "\u2334",
        'w' => "\u2335",
        'x' => "\u21a7",
        'y' => "\u2332",
        'z' => "\u2333",
        _ => letter.ToString(),
    };
}
