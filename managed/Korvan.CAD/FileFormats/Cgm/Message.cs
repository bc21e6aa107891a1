using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>A message about a metafile that was read.</summary>
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

    /// <summary>Gets the severity.</summary>
    public Severity Severity { get; }

    /// <summary>Gets the class of the element.</summary>
    public ClassCode ElementClass { get; }

    /// <summary>Gets the number of the element in its class.</summary>
    public int ElementId { get; }

    /// <summary>Gets the position of the element: the byte offset in a binary file, from 0, or the line of a clear text
    /// file, from 1.</summary>
    public long Position { get; }

    /// <summary>Gets the text of the message, with element and position.</summary>
    public string Text { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{Severity}: {Text}";
}
