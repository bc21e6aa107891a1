using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>One boundary path of a hatch and what is known about it.</summary>
public class CadHatchBoundaryPathContainer
{
    /// <summary>Creates an outer boundary.</summary>
    /// <param name="boundaryPath">The boundary path.</param>
    public CadHatchBoundaryPathContainer(ICadBoundaryPath boundaryPath)
    {
        BoundaryPath = boundaryPath;
        PathTypeFlag = CadBoundaryPathTypeFlag.External
            | (boundaryPath is CadPolylineBoundaryPath ? CadBoundaryPathTypeFlag.Polyline : 0);
    }

    /// <summary>Gets or sets the type of the boundary path. Group code 92.</summary>
    public CadBoundaryPathTypeFlag PathTypeFlag { get; set; }

    /// <summary>Gets the boundary path.</summary>
    public ICadBoundaryPath BoundaryPath { get; }

    /// <summary>Gets the handles of the entities that the boundary was made from, in hexadecimal. The list is live.
    /// Group code 330.</summary>
    public List<string> SourceBoundaryObjects { get; } = [];
}
