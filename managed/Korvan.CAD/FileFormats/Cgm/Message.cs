using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Something that was noticed while a metafile was read.</summary>
public sealed class Message
{
    internal Message(Severity severity, ClassCode elementClass, int elementId, long position, string text)
    {
        Severity = severity;
        ElementClass = elementClass;
        ElementId = elementId;
        Position = position;
        Text = text;
    }

    /// <summary>Gets how much it matters.</summary>
    public Severity Severity { get; }

    /// <summary>Gets the class of the element.</summary>
    public ClassCode ElementClass { get; }

    /// <summary>Gets the number of the element in its class.</summary>
    public int ElementId { get; }

    /// <summary>Gets where the element begins: the byte of a binary file, counted from 0, or the line of a clear text
    /// file, counted from 1.</summary>
    public long Position { get; }

    /// <summary>Gets what was noticed, with element and place.</summary>
    public string Text { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{Severity}: {Text}";
}
