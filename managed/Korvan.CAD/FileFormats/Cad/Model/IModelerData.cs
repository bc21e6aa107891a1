using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An entity whose binary data of a solid modeler may be in a section of its own.</summary>
internal interface IModelerData
{
    /// <summary>Gets or sets the data as chunks of hexadecimal digits; null where there are none.</summary>
    List<string>? ModelerChunks { get; set; }
}
