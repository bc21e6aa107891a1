using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An object that is not drawn: dictionaries, layouts, styles and the like.</summary>
public abstract partial class CadObjectBase : CadOwnedObjectBase
{
    internal CadObjectBase()
    {
    }

    /// <summary>Gets the type.</summary>
    public CadObjectTypeName TypeName => ObjectTypeNames.Parse(DxfName);

    /// <summary>Gets the type as files name it, group code 0.</summary>
    public string TypeNameText => DxfName;

    /// <summary>Returns the type and what the object is found by in one line.</summary>
    /// <returns>The type and what the object is found by in one line.</returns>
    public override string ToString() => Key.Length > 0 ? $"{DxfName} {Key}" : DxfName;
}
