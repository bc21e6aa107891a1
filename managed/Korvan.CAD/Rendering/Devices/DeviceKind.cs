namespace Korvan.CAD.Rendering.Devices;

/// <summary>In what the sizes of a page are counted.</summary>
internal enum DeviceKind
{
    /// <summary>1/72 inch, as in page formats.</summary>
    Points,

    /// <summary>1/96 inch, as in scalable graphics of the web.</summary>
    UserUnits,

    /// <summary>Pixels of a raster.</summary>
    Pixels,
}
