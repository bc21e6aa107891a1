using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// The signs of ISO 1101 that tolerance fonts have at lower case letters, as characters that common text fonts
/// have: circled letters become bracketed ones, the position sign a circled cross.
/// </summary>
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
        'b' => "\u22a5",
        'c' => "\u25b1",
        'd' => "\u25e0",
        'e' => "\u25cb",
        'f' => "\u2225",
        'g' => "/\u25cb/",
        'h' => "\u2197",
        'i' => "\u2261",
        'j' => "\u2295",
        'k' => "\u2312",
        'l' => "(L)",
        'm' => "(M)",
        'n' => "\u2300",
        'p' => "(P)",
        'r' => "\u25ce",
        's' => "(S)",
        't' => "\u2197\u2197",
        'u' => "\u2212",
        'v' => "\u2423",
        'w' => "\u2228",
        'x' => "\u21a7",
        'y' => "\u25b7",
        'z' => "\u25b7",
        _ => letter.ToString(),
    };
}
