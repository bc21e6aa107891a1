using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A node of an evaluation graph: an object whose value is computed from those of other nodes.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbEvalExpr")]
[CadBits("BL = -1", "BL MajorVersion", "BL MinorVersion", "Part Value", "BL NodeId")]
public abstract partial class CadDbEvalExpr : CadObjectBase
{
    internal CadDbEvalExpr()
    {
    }

    /// <summary>Gets or sets the index of the node in its graph. Group code 90.</summary>
    [CadInt(90)]
    public int NodeId { get; set; }

    /// <summary>Gets or sets the major version of the program that wrote the node. Group code 98.</summary>
    [CadInt(98)]
    public int MajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the node. Group code 99.</summary>
    [CadInt(99)]
    public int MinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the string before the value of the node; empty in what programs write. Group code
    /// 1.</summary>
    [CadString(1, Optional = true)]
    public string ValueName { get; set; } = "";

    /// <summary>Gets the value of the node, where files have one.</summary>
    [CadPart]
    public AssocEvaluatedVariant Value { get; } = new();
}
