namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>The declared type of an attribute: a name, or an aggregate of another form.</summary>
internal sealed class SchemaForm
{
    private SchemaForm(string text, string name, SchemaForm? element)
    {
        Text = text;
        Name = name;
        Element = element;
    }

    /// <summary>Gets the form in the syntax of the tables.</summary>
    internal string Text { get; }

    /// <summary>Gets the name of the type; of an aggregate, that of its innermost elements.</summary>
    internal string Name { get; }

    /// <summary>Gets the form of the elements of an aggregate; <see langword="null"/> for a name.</summary>
    internal SchemaForm? Element { get; }

    /// <summary>Parses a form such as <c>L[1:?]S[2:2]IfcCartesianPoint</c>.</summary>
    internal static SchemaForm Parse(string text)
    {
        int close = text.IndexOf(']');
        if (text.Length < 2 || text[1] != '[' || close < 0)
        {
            return new SchemaForm(text, text, null);
        }

        SchemaForm element = Parse(text.Substring(close + 1));
        return new SchemaForm(text, element.Name, element);
    }

    /// <summary>Returns the form in EXPRESS syntax: <c>LIST [1:?] OF SET [2:2] OF IfcCartesianPoint</c>.</summary>
    internal string Describe()
    {
        if (Element is null)
        {
            return Name;
        }

        string kind = Text[0] switch
        {
            'L' => "LIST",
            'S' => "SET",
            'A' => "ARRAY",
            _ => "BAG",
        };
        return kind + " " + Text.Substring(1, Text.IndexOf(']')) + " OF " + Element.Describe();
    }
}
