using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>Parts that are stored and drawn again.</summary>
public static class SegmentControlElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)SegmentControlElement.CopySegment, "COPYSEG", static () => new CopySegment()),
        new((int)SegmentControlElement.InheritanceFilter, "INHFILTER", static () => new InheritanceFilter()),
        new((int)SegmentControlElement.ClipInheritance, "CLIPINH", static () => new ClipInheritance()),
        new((int)SegmentControlElement.SegmentTransformation, "SEGTRAN", static () => new SegmentTransformation()),
        new((int)SegmentControlElement.SegmentHighlighting, "SEGHIGHL", static () => new SegmentHighlighting()),
        new((int)SegmentControlElement.SegmentDisplayPriority, "SEGDISPPRI", static () => new SegmentDisplayPriority()),
        new((int)SegmentControlElement.SegmentPickPriority, "SEGPICKPRI", static () => new SegmentPickPriority()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(SegmentControlElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(SegmentControlElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(SegmentControlElement element) =>
        ElementTables.Get(ClassCode.SegmentControlElement, element);
}
