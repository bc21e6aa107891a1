using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The pattern of areas, by its index.</summary>
public sealed class PatternIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public PatternIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.PatternIndex)
    {
    }
}
