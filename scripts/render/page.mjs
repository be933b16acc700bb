// The page that draws one glTF scene with three.js, the way the VRML 1.0
// pictures of the gallery are drawn by the VRML viewer: the scene's first
// camera or, without one, a view fitted to the scene's box as the viewer
// fits its default one; a headlight plus the scene's own lights; the
// viewer's dark grey background; colours taken as they are, with no colour
// space conversion and no antialiasing.  render-gltf.mjs loads this page
// and calls window.renderPicture once per picture.
import * as THREE from 'three';
import {GLTFLoader} from 'three/addons/loaders/GLTFLoader.js';
import {LineMaterial} from 'three/addons/lines/LineMaterial.js';
import {LineSegments2} from 'three/addons/lines/LineSegments2.js';
import {LineSegmentsGeometry} from 'three/addons/lines/LineSegmentsGeometry.js';

// The VRML viewer computes with colours as given and writes them out as
// they come; so does this page.
THREE.ColorManagement.enabled = false;

// The VRML viewer's background when a scene sets none: grey 0.1.
const BACKGROUND = new THREE.Color(0.1, 0.1, 0.1);
// three.js divides diffuse light by pi (a physically based model); VRML 1.0
// lights do not, so a light of intensity 1 is given pi here.
const LIGHT_SCALE = Math.PI;
// The VRML viewer draws lines 2 pixels wide and points 3 pixels across;
// WebGL draws lines 1 pixel wide, so lines become three.js's wide lines.
const LINE_WIDTH = 2;
const POINT_SIZE = 3;
// The field of view of the viewer's default view, over the picture's
// smaller side.
const DEFAULT_FIELD_OF_VIEW = 45;

function firstCamera(root) {
  let found = null;
  root.traverse((object) => {
    if (!found && object.isCamera) found = object;
  });
  return found;
}

// The box of what is drawn as the VRML viewer takes it: each mesh's own box
// carried into world coordinates (so a turned shape's box is the box of its
// turned box, larger than the shape's).
function sceneBox(root) {
  return new THREE.Box3().setFromObject(root, false);
}

// Without a camera, the VRML viewer looks down -Z with +Y up from the
// middle of the scene's box, drawn back from the box's front face by twice
// the average of the box's sides.
function fittedCamera(box, aspect) {
  const camera = new THREE.PerspectiveCamera(fieldOfViewY(DEFAULT_FIELD_OF_VIEW, aspect), aspect);
  if (box.isEmpty()) return camera;
  const size = box.getSize(new THREE.Vector3());
  const center = box.getCenter(new THREE.Vector3());
  const average = (size.x + size.y + size.z) / 3;
  camera.position.set(center.x, center.y, box.max.z + 2 * average);
  camera.lookAt(center.x, center.y, camera.position.z - 1);
  return camera;
}

// A field of view that the viewer applies to the picture's smaller side, as
// the vertical one three.js takes.
function fieldOfViewY(degrees, aspect) {
  if (aspect >= 1) return degrees;
  const half = THREE.MathUtils.degToRad(degrees) / 2;
  return THREE.MathUtils.radToDeg(2 * Math.atan(Math.tan(half) / aspect));
}

// Fits a glTF camera to the picture: its vertical angle (or height) as
// written, the picture's aspect.  The glTF's yfov is the VRML camera's
// heightAngle, which the viewer applies to the smaller side too.
function fitCameraToPicture(camera, aspect) {
  if (camera.isPerspectiveCamera) {
    camera.fov = fieldOfViewY(camera.fov, aspect);
    camera.aspect = aspect;
  } else if (camera.isOrthographicCamera) {
    const halfHeight = (camera.top - camera.bottom) / 2;
    const centerY = (camera.top + camera.bottom) / 2;
    const halfWidth = halfHeight * aspect;
    camera.left = -halfWidth;
    camera.right = halfWidth;
    camera.top = centerY + halfHeight;
    camera.bottom = centerY - halfHeight;
  }
}

// VRML 1.0 cameras have no clipping planes: the viewer sets them around the
// scene, and so does this page (the exporter's planes are only defaults).
function fitClippingPlanes(camera, box) {
  if (box.isEmpty()) return;
  camera.updateMatrixWorld(true);
  const toView = camera.matrixWorldInverse;
  let nearest = Infinity;
  let farthest = -Infinity;
  for (let i = 0; i < 8; ++i) {
    const corner = new THREE.Vector3(i & 1 ? box.max.x : box.min.x, i & 2 ? box.max.y : box.min.y,
                                     i & 4 ? box.max.z : box.min.z).applyMatrix4(toView);
    nearest = Math.min(nearest, -corner.z);
    farthest = Math.max(farthest, -corner.z);
  }
  const span = Math.max(farthest - nearest, box.getSize(new THREE.Vector3()).length(), 1e-6);
  const far = farthest + 0.01 * span;
  let near = nearest - 0.01 * span;
  if (camera.isPerspectiveCamera) near = Math.max(near, far * 1e-4);
  camera.near = near;
  camera.far = Math.max(far, near + 1e-6);
}

// The corners of each segment of a line, strip or loop, in drawing order.
function segmentCorners(line) {
  const geometry = line.geometry;
  const count = geometry.index ? geometry.index.count : geometry.attributes.position.count;
  const corner = (i) => (geometry.index ? geometry.index.getX(i) : i);
  const corners = [];
  if (line.isLineSegments) {
    for (let i = 0; i + 1 < count; i += 2) corners.push(corner(i), corner(i + 1));
  } else {
    for (let i = 0; i + 1 < count; ++i) corners.push(corner(i), corner(i + 1));
    if (line.isLineLoop && count > 2) corners.push(corner(count - 1), corner(0));
  }
  return corners;
}

function triples(attribute, corners) {
  return corners.flatMap((i) => [attribute.getX(i), attribute.getY(i), attribute.getZ(i)]);
}

// Draws every line LINE_WIDTH pixels wide (a wide line placed as the line's
// child, the line itself no longer drawn) and every point POINT_SIZE
// pixels across.
function widenLinesAndPoints(scene, width, height) {
  const lines = [];
  scene.traverse((object) => {
    if (object.isLine) lines.push(object);
    if (object.isPoints) {
      for (const material of [object.material].flat()) {
        material.size = POINT_SIZE;
        material.sizeAttenuation = false;
      }
    }
  });
  for (const line of lines) {
    const corners = segmentCorners(line);
    const colors = line.geometry.attributes.color;
    const geometry = new LineSegmentsGeometry().setPositions(triples(line.geometry.attributes.position, corners));
    if (colors) geometry.setColors(triples(colors, corners));
    const source = [line.material].flat()[0];
    const material = new LineMaterial({
      color: colors ? 0xffffff : source.color,
      linewidth: LINE_WIDTH,
      vertexColors: Boolean(colors),
      transparent: source.transparent,
      opacity: source.opacity,
    });
    material.resolution.set(width, height);
    for (const hidden of [line.material].flat()) hidden.visible = false;
    line.add(new LineSegments2(geometry, material));
  }
}

function addHeadlight(scene, camera) {
  const light = new THREE.DirectionalLight(0xffffff, LIGHT_SCALE);
  light.position.set(0, 0, 0);
  light.target.position.set(0, 0, -1);
  camera.add(light);
  camera.add(light.target);
  if (!camera.parent) scene.add(camera);
}

function describeCamera(camera, fitted) {
  const position = camera.getWorldPosition(new THREE.Vector3());
  const direction = camera.getWorldDirection(new THREE.Vector3());
  return {
    fitted,
    type: camera.type,
    position: position.toArray(),
    direction: direction.toArray(),
    fieldOfView: camera.isPerspectiveCamera ? camera.fov : null,
    near: camera.near,
    far: camera.far,
  };
}

// Draws the glTF at `url` into a width x height picture; returns its PNG as
// a data: URL and a description of the camera used.
window.renderPicture = async function renderPicture(url, width, height) {
  const gltf = await new GLTFLoader().loadAsync(url);
  // An empty export has no scene: its picture is the background alone.
  const scene = gltf.scene || new THREE.Scene();
  scene.updateMatrixWorld(true);
  const aspect = width / height;
  const box = sceneBox(scene);

  let camera = firstCamera(scene);
  const fitted = !camera;
  if (camera) fitCameraToPicture(camera, aspect);
  else camera = fittedCamera(box, aspect);
  fitClippingPlanes(camera, box);
  camera.updateProjectionMatrix();

  scene.traverse((object) => {
    if (object.isLight) object.intensity *= LIGHT_SCALE;
    for (const material of [object.material || []].flat()) {
      // Texels too are used as they are, as the VRML viewer uses them.
      for (const value of Object.values(material)) {
        if (value && value.isTexture) value.colorSpace = THREE.NoColorSpace;
      }
    }
  });
  addHeadlight(scene, camera);
  widenLinesAndPoints(scene, width, height);

  const renderer = new THREE.WebGLRenderer({antialias: false, preserveDrawingBuffer: true});
  try {
    renderer.setPixelRatio(1);
    renderer.setSize(width, height, false);
    renderer.outputColorSpace = THREE.LinearSRGBColorSpace;
    renderer.toneMapping = THREE.NoToneMapping;
    renderer.setClearColor(BACKGROUND, 1);
    renderer.render(scene, camera);
    return {png: renderer.domElement.toDataURL('image/png'), camera: describeCamera(camera, fitted)};
  } finally {
    renderer.dispose();
    renderer.forceContextLoss();
  }
};
