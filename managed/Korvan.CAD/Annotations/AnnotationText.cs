using System.Text;

namespace Korvan.CAD.Annotations;

/// <summary>Escapes plain text for entities with formatting codes.</summary>
internal static class AnnotationText
{
    internal static string Escape(string text)
    {
        StringBuilder result = new(text.Length + 8);
        foreach (char one in text.ReplaceLineEndings("\n"))
        {
            _ = one switch
            {
                '\n' => result.Append("\\P"),
                '\\' or '{' or '}' => result.Append('\\').Append(one),
                _ => result.Append(one),
            };
        }

        return result.ToString();
    }

    internal static string Unescape(string text)
    {
        StringBuilder result = new(text.Length);
        for (int i = 0; i < text.Length; i++)
        {
            bool escaped = text[i] == '\\' && i + 1 < text.Length;
            i += escaped ? 1 : 0;
            result.Append(escaped && text[i] == 'P' ? '\n' : text[i]);
        }

        return result.ToString();
    }
}
