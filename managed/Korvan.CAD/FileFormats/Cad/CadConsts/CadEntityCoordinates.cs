using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The coordinate system that the points of an entity are in.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadEntityCoordinates
{
    /// <summary>World coordinates.</summary>
    World = 0,

    /// <summary>Object coordinates: the plane across the extrusion direction of the entity.</summary>
    Object = 1,
}
