using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Keeps the messages about a metafile, up to a count that a damaged one cannot exceed.</summary>
internal sealed class MessageLog
{
    private const int MaxMessages = 1000;

    private readonly List<Message> _messages = [];

    internal IReadOnlyList<Message> Messages => _messages;

    /// <summary>Describes the place of an element.</summary>
    internal static string Place(string unit, long position, ClassCode elementClass, int elementId, string keyword)
    {
        string name = keyword.Length > 0 ? keyword : "element";
        return $"{unit} {position}, {name} ({(int)elementClass}, {elementId})";
    }

    internal static string Place(string unit, long position, ClassCode elementClass, int elementId) =>
        Place(unit, position, elementClass, elementId, ElementTables.Keyword(elementClass, elementId));

    internal void Add(Message message)
    {
        if (_messages.Count < MaxMessages)
        {
            _messages.Add(message);
        }
        else if (_messages.Count == MaxMessages)
        {
            const string moreText = "there are more messages";
            _messages.Add(
                new Message(Severity.Warning, message.ElementClass, message.ElementId, message.Position, moreText));
        }
    }
}
