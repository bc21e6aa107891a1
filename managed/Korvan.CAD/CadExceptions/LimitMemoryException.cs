using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An operation would need more memory than its limit allows.</summary>
public class LimitMemoryException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public LimitMemoryException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public LimitMemoryException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
