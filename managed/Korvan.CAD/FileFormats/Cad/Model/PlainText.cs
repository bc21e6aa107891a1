using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Texts without their formatting codes.</summary>
internal static class PlainText
{
    internal static string FromText(string text) => TextCodes.Plain(text);

    /// <summary>Takes the codes out of a text of several lines; lines end with a line feed.</summary>
    internal static string FromMText(string text)
    {
        StringBuilder result = new(text.Length);
        foreach (MTextToken token in MTextParser.Parse(text, MTextFormat.None))
        {
            _ = token.Kind switch
            {
                MTextTokenKind.Space => result.Append(' '),
                MTextTokenKind.Tab => result.Append('\t'),
                MTextTokenKind.Paragraph or MTextTokenKind.Column => result.Append('\n'),
                MTextTokenKind.Stack => result.Append(token.Text).Append('/').Append(token.Lower),
                _ => result.Append(token.Text),
            };
        }

        return result.ToString();
    }
}
