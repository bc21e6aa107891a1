using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What schemas and records of the data section have in common. They have no handles.</summary>
public abstract partial class CadBaseAcds : CadBaseObject
{
    internal CadBaseAcds()
    {
    }

    /// <summary>Gets the type.</summary>
    public CadAcdsTypeName TypeName => DxfName switch
    {
        "ACDSSCHEMA" => CadAcdsTypeName.Schema,
        "ACDSRECORD" => CadAcdsTypeName.Record,
        _ => CadAcdsTypeName.None,
    };

    /// <summary>Gets the type as files name it, group code 0.</summary>
    public string TypeNameText => DxfName;
}
