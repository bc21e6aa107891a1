using System;
using System.Text;

namespace Korvan.WrpGen.Emit;

/// <summary>Text with indentation: the one writer of all emitters.</summary>
public sealed class CodeWriter
{
    private const int Step = 4;

    private readonly StringBuilder _text = new();
    private int _indent;

    public CodeWriter Line(string line = "")
    {
        if (line.Length > 0)
        {
            _text.Append(' ', _indent).Append(line);
        }
        _text.Append('\n');
        return this;
    }

    public void Indented(Action body)
    {
        _indent += Step;
        body();
        _indent -= Step;
    }

    /// <summary>A header, its body in braces, and what closes them.</summary>
    public void Block(string header, Action body, string close = "}")
    {
        Line(header);
        Line("{");
        Indented(body);
        Line(close);
    }

    public override string ToString() => _text.ToString();
}
