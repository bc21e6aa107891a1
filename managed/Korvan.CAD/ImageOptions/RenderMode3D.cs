using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>How bodies and faces in space are drawn.</summary>
[PythonEnum(EnumKind.Flag)]
public enum RenderMode3D
{
    /// <summary>Edges alone.</summary>
    Wireframe = 0,

    /// <summary>Filled faces without edges.</summary>
    Solid = 1,

    /// <summary>Filled faces and their edges.</summary>
    SolidWithEdges = 2,

    /// <summary>Filled faces and the edges that they do not cover.</summary>
    SolidWithEdgesHidden = 3,
}
