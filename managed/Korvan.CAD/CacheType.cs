using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Storage of the pixels of images.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CacheType
{
    /// <summary>In memory up to the limit of <see cref="Cache.MaxMemoryForCache"/>, beyond it on disk.</summary>
    Auto = 0,

    /// <summary>In files of the cache folder.</summary>
    CacheOnDiskOnly = 1,

    /// <summary>In memory; beyond the limit an error is raised.</summary>
    CacheInMemoryOnly = 2,
}
