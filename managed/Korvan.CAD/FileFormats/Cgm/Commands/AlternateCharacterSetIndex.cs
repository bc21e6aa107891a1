using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The set of characters with the eighth bit, by its place in the list of sets.</summary>
public sealed class AlternateCharacterSetIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public AlternateCharacterSetIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.AlternateCharacterSetIndex)
    {
    }

    internal override void Apply(CodingState state) => state.Current.AlternateCharacterSet = Index;
}
