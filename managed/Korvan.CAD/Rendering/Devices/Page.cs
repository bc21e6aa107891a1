using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>One page ready for a document: its size in device units and what is painted on it.</summary>
internal sealed record Page(string Name, double Width, double Height, DrawingList List, PaintSettings Settings)
{
    /// <summary>Makes the list once more, for a device that draws it in parts, and hands it each part; null where the
    /// list holds everything.</summary>
    internal System.Action<System.Action<DrawingList>>? Replay { get; init; }

    /// <summary>What is drawn over the page, in device units.</summary>
    internal DrawingList? Overlay { get; init; }

    /// <summary>What a device notes that it could not draw as it is.</summary>
    internal RenderNotes Notes { get; init; } = new();
}

/// <summary>What a document says of itself.</summary>
internal readonly record struct DocumentInfo(string? Title, string? Author, string? Subject, string? Keywords)
{
    /// <summary>Gets when the drawing was made, in universal time.</summary>
    internal System.DateTime? Created { get; init; }

    /// <summary>Gets when the drawing was last changed, in universal time.</summary>
    internal System.DateTime? Modified { get; init; }

    internal const string Creator = "korvan.cad";
}
