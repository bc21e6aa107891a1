using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>How solids and 3D faces are rendered.</summary>
[PythonEnum(EnumKind.Flag)]
public enum RenderMode3D
{
    /// <summary>Edges only.</summary>
    Wireframe = 0,

    /// <summary>Filled faces without edges.</summary>
    Solid = 1,

    /// <summary>Filled faces and their edges.</summary>
    SolidWithEdges = 2,

    /// <summary>Filled faces and visible edges.</summary>
    SolidWithEdgesHidden = 3,
}
