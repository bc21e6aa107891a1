using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Keeps what was noticed while a metafile was read, up to a count that a damaged one cannot exceed.</summary>
internal sealed class MessageLog
{
    private const int MostMessages = 1000;

    private readonly List<Message> _messages = [];

    internal IReadOnlyList<Message> Messages => _messages;

    /// <summary>Tells where something is.</summary>
    internal static string Place(string unit, long position, ClassCode elementClass, int elementId, string keyword)
    {
        string word = keyword.Length > 0 ? keyword : "element";
        return $"{unit} {position}, {word} ({(int)elementClass}, {elementId})";
    }

    internal static string Place(string unit, long position, ClassCode elementClass, int elementId) =>
        Place(unit, position, elementClass, elementId, ElementTables.Keyword(elementClass, elementId));

    internal void Add(Message message)
    {
        if (_messages.Count < MostMessages)
        {
            _messages.Add(message);
        }
        else if (_messages.Count == MostMessages)
        {
            _messages.Add(new Message(Severity.Warning, message.ElementClass, message.ElementId, message.Position, "there are more messages"));
        }
    }
}
