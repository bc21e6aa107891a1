using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>What actions of dynamic blocks have in common: they change entities when a parameter changes.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbBlockAction")]
[CadBits("base", "3BD DisplayLocation", "H[BL] SelectionHandles", "BL[BL] NodeIds")]
public abstract partial class CadBlockAction : CadBlockElement
{
    internal CadBlockAction()
    {
    }

    /// <summary>Gets the indices of the nodes that the action depends on. The list is live. Group code 91.</summary>
    [CadList(91, Count = 70)]
    public List<int> NodeIds { get; } = [];

    /// <summary>Gets the handles of the entities that the action changes, in hexadecimal. The list is live. Group code
    /// 330.</summary>
    [CadList(330, Count = 71)]
    public List<string> SelectionHandles { get; } = [];

    /// <summary>Gets or sets the position of the symbol of the action, in the coordinates of the block. Group codes
    /// 1010, 1020, 1030.</summary>
    [Cad3DPoint(1010)]
    public Cad3DPoint DisplayLocation { get; set; } = new();
}
