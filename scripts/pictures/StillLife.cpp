#include <scripts/pictures/Samples.h>

#include <QImage>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Pictures {

namespace {

const int kWidth = 960;
const int kHeight = 540;
const int kSamples = 3;
const int kBounces = 3;

struct Vector {
    double x, y, z;
};

Vector operator+(Vector a, Vector b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Vector operator-(Vector a, Vector b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Vector operator*(Vector a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

double dot(Vector a, Vector b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector unit(Vector a)
{
    return a * (1 / std::sqrt(dot(a, a)));
}

Vector mix(Vector a, Vector b, double share)
{
    return a * (1 - share) + b * share;
}

struct Ball {
    Vector center;
    double radius;
    Vector colour;
    double mirror;
};

const Ball kBalls[] = {
    {{-1.75, 1.0, 0.5}, 1.0, {0.80, 0.16, 0.13}, 0.10},    {{0.35, 1.3, 1.7}, 1.3, {0.86, 0.87, 0.88}, 0.62},
    {{2.35, 0.85, 0.3}, 0.85, {0.10, 0.42, 0.62}, 0.14},   {{0.55, 0.5, -1.0}, 0.5, {0.95, 0.66, 0.14}, 0.10},
    {{-0.6, 0.36, -1.35}, 0.36, {0.24, 0.56, 0.27}, 0.12},
};
const Vector kLight = unit({-0.55, 0.85, -0.6});
const Vector kEye = {0.2, 2.15, -7.6};

struct Hit {
    double distance;
    Vector normal;
    Vector colour;
    double mirror;
};

const double kFar = 1e9;
const double kNear = 1e-4;

double distanceToBall(const Ball& ball, Vector origin, Vector direction)
{
    const Vector offset = origin - ball.center;
    const double half = dot(offset, direction);
    const double discriminant = half * half - dot(offset, offset) + ball.radius * ball.radius;
    if (discriminant < 0)
        return kFar;
    const double distance = -half - std::sqrt(discriminant);
    return distance > kNear ? distance : kFar;
}

Vector tableColour(Vector point)
{
    const bool even = (int(std::floor(point.x / 0.9)) + int(std::floor(point.z / 0.9))) % 2 == 0;
    return even ? Vector{0.72, 0.66, 0.58} : Vector{0.34, 0.29, 0.27};
}

Hit nearestHit(Vector origin, Vector direction)
{
    Hit hit = {kFar, {0, 0, 0}, {0, 0, 0}, 0};
    if (direction.y < -kNear) {
        hit.distance = -origin.y / direction.y;
        hit = {hit.distance, {0, 1, 0}, tableColour(origin + direction * hit.distance), 0.08};
    }
    for (const Ball& ball : kBalls) {
        const double distance = distanceToBall(ball, origin, direction);
        if (distance < hit.distance) {
            const Vector normal = (origin + direction * distance - ball.center) * (1 / ball.radius);
            hit = {distance, normal, ball.colour, ball.mirror};
        }
    }
    return hit;
}

Vector skyColour(Vector direction)
{
    const double height = std::clamp(direction.y * 1.6 + 0.12, 0.0, 1.0);
    return mix({0.80, 0.74, 0.68}, {0.20, 0.27, 0.38}, height);
}

/// 1 in full light, less the deeper \a point lies in the soft shadow of a ball.
double lightAt(Vector point)
{
    double light = 1;
    for (const Ball& ball : kBalls) {
        const Vector offset = ball.center - point;
        const double along = dot(offset, kLight);
        if (along <= 0)
            continue;
        const double gap = std::sqrt(std::max(0.0, dot(offset, offset) - along * along)) - ball.radius;
        const double softness = 0.12 * along + kNear;
        light = std::min(light, std::clamp(0.5 + gap / softness, 0.0, 1.0));
    }
    return light;
}

/// Light from the sky that the balls keep away from where they touch the table.
double openness(Vector point, Vector normal)
{
    double open = 1;
    for (const Ball& ball : kBalls) {
        const Vector offset = ball.center - point;
        const double squared = dot(offset, offset);
        const double facing = dot(normal, offset) / std::sqrt(squared);
        const double share = ball.radius * ball.radius / squared;
        if (share < 0.999)
            open *= 1 - 0.75 * share * std::max(facing, 0.0);
    }
    return open;
}

Vector colourAlong(Vector origin, Vector direction, int bounces)
{
    const Hit hit = nearestHit(origin, direction);
    if (hit.distance >= kFar)
        return skyColour(direction);
    const Vector point = origin + direction * hit.distance + hit.normal * kNear;
    const double facing = dot(hit.normal, kLight);
    const double light = facing > 0 ? lightAt(point) * facing : 0;
    Vector colour = hit.colour * (0.42 * openness(point, hit.normal) + 0.85 * light);

    const Vector mirrored = direction - hit.normal * (2 * dot(direction, hit.normal));
    if (bounces > 0) {
        const double grazing = std::pow(1 + dot(direction, hit.normal), 5);
        const double mirror = hit.mirror + (1 - hit.mirror) * 0.5 * grazing;
        colour = mix(colour, colourAlong(point, mirrored, bounces - 1), mirror);
    }
    const double glint =
        light > 0 && hit.mirror > 0.09 ? std::pow(std::max(dot(mirrored, kLight), 0.0), 90) : 0;
    const double haze = std::clamp((hit.distance - 9) / 22, 0.0, 1.0);
    return mix(colour + Vector{1, 0.97, 0.9} * glint, skyColour({0, 0, 1}), haze);
}

Vector colourOfPixel(int column, int row)
{
    Vector sum = {0, 0, 0};
    for (int sample = 0; sample < kSamples * kSamples; ++sample) {
        const double x = column + (sample % kSamples + 0.5) / kSamples - kWidth / 2.0;
        const double y = kHeight / 2.0 - row - (sample / kSamples + 0.5) / kSamples;
        const Vector direction = unit({x / kHeight, y / kHeight - 0.17, 1.15});
        sum = sum + colourAlong(kEye, direction, kBounces);
    }
    return sum * (1.0 / (kSamples * kSamples));
}

int code(double light)
{
    return int(std::pow(std::clamp(light, 0.0, 1.0), 1 / 1.6) * 255 + 0.5);
}

} // namespace

QImage drawStillLife()
{
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    for (int row = 0; row < kHeight; ++row) {
        for (int column = 0; column < kWidth; ++column) {
            const Vector colour = colourOfPixel(column, row);
            image.setPixel(column, row, qRgb(code(colour.x), code(colour.y), code(colour.z)));
        }
    }
    return image;
}

}} // namespace Norvane::Pictures
