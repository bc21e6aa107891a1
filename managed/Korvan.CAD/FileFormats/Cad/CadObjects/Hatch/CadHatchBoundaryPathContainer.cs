using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>One outline of a hatch and what is known about it.</summary>
public class CadHatchBoundaryPathContainer
{
    /// <summary>Creates an outer outline.</summary>
    /// <param name="boundaryPath">The outline.</param>
    public CadHatchBoundaryPathContainer(ICadBoundaryPath boundaryPath)
    {
        BoundaryPath = boundaryPath;
        PathTypeFlag = CadBoundaryPathTypeFlag.External
            | (boundaryPath is CadPolylineBoundaryPath ? CadBoundaryPathTypeFlag.Polyline : 0);
    }

    /// <summary>Gets or sets the kind of the outline. Group code 92.</summary>
    public CadBoundaryPathTypeFlag PathTypeFlag { get; set; }

    /// <summary>Gets the outline.</summary>
    public ICadBoundaryPath BoundaryPath { get; }

    /// <summary>Gets the handles of the entities that the outline was made from, in hexadecimal. The list is live.
    /// Group code 330.</summary>
    public List<string> SourceBoundaryObjects { get; } = [];
}
